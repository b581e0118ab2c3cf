// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DailyShortcuts.h"

#include <algorithm>

namespace keyvora {

namespace {

/// The first shortcut that names the application, other than the day's own; null where none does.
const Shortcut *tipFor(const QString &application, const QList<Shortcut> &shortcuts, const Shortcut &daily)
{
    const auto found = std::ranges::find_if(shortcuts, [&](const Shortcut &shortcut) {
        return shortcut.id != daily.id && shortcut.apps.contains(application);
    });
    return found == shortcuts.end() ? nullptr : &*found;
}

/// The first of the most used shortcuts other than these; null where none was used.
const Shortcut *mostUsed(const QHash<QString, qint64> &usageCounts, const QList<Shortcut> &shortcuts,
                         const QStringList &others)
{
    const Shortcut *result = nullptr;
    qint64 most = 0;
    for (const Shortcut &shortcut : shortcuts) {
        const qint64 count = usageCounts.value(shortcut.id);
        if (count <= most || others.contains(shortcut.id))
            continue;
        most = count;
        result = &shortcut;
    }
    return result;
}

} // namespace

Shortcut dailyShortcut(const QList<Shortcut> &shortcuts, QDate day)
{
    const qsizetype ordinal = std::max(1, day.dayOfYear());
    return shortcuts.value((ordinal - 1) % std::max(qsizetype{1}, shortcuts.size()));
}

QList<Shortcut> dailyTrio(const QList<Shortcut> &shortcuts, const Shortcut &daily, const QString &activeApp,
                          const QHash<QString, qint64> &usageCounts)
{
    if (shortcuts.isEmpty())
        return {};
    const qsizetype position = std::max(qsizetype{0}, shortcuts.indexOf(daily));
    const auto after = [&](qsizetype distance) {
        return &shortcuts.at((position + distance) % shortcuts.size());
    };
    const Shortcut *tip = tipFor(activeApp, shortcuts, daily);
    if (tip == nullptr)
        tip = after(1);
    const Shortcut *used = mostUsed(usageCounts, shortcuts, {daily.id, tip->id});
    if (used == nullptr)
        used = after(2);
    return uniqued({daily, *tip, *used});
}

} // namespace keyvora
