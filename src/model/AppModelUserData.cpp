// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// Favourites, usage counts and the user's own shortcuts.

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/CountUp.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"
#include "model/Localization.h"
#include "model/TextMatching.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

void AppModel::toggleFavorite(const QString &shortcutId)
{
    if (!m_favorites.remove(shortcutId))
        m_favorites.insert(shortcutId);
    saveFavorites();
    emit favoritesChanged();
}

std::optional<Shortcut> AppModel::conflict(const QStringList &keys, const QString &app,
                                           const std::optional<QString> &excluding) const
{
    if (keys.isEmpty())
        return std::nullopt;
    const QSet<QString> proposedKeys(keys.begin(), keys.end());
    const QString proposedApp = app.trimmed();
    // Most shortcuts are told apart without a set of their own, of which a library would need thousands.
    const auto hasSameKeys = [&](const QStringList &others) {
        return std::ranges::all_of(others, [&](const QString &key) { return proposedKeys.contains(key); }) &&
               QSet<QString>(others.begin(), others.end()).size() == proposedKeys.size();
    };
    for (const Shortcut &shortcut : allShortcuts()) {
        const bool overlaps =
            shortcut.apps.isEmpty() || proposedApp.isEmpty() || shortcut.apps.contains(proposedApp);
        if (overlaps && excluding != shortcut.id && hasSameKeys(shortcut.keys))
            return shortcut;
    }
    return std::nullopt;
}

void AppModel::addCustom(const QString &title, const QStringList &keys, Shortcut::Category category,
                         const QString &app, const QString &detail)
{
    const QString stockDetail =
        Localization::shared().text(u"Vlastní klávesová zkratka."_s, u"Custom keyboard shortcut."_s);
    m_customShortcuts.append({
        .id = u"custom-"_s + m_services.makeUuid(),
        .title = title,
        .keys = keys,
        .category = category,
        .apps = app.trimmed().isEmpty() ? QStringList() : QStringList(app.trimmed()),
        .detail = detail.isEmpty() ? stockDetail : detail,
    });
    saveCustomShortcuts();
    emit customShortcutsChanged();
}

DeletedCustom AppModel::deleteCustom(const Shortcut &shortcut)
{
    // The parameter may be an element of the list that is changed here.
    const QString id = shortcut.id;
    DeletedCustom deleted;
    for (qsizetype position = 0; position < m_customShortcuts.size(); ++position) {
        if (m_customShortcuts[position].id == id)
            deleted.entries.append({position, m_customShortcuts[position]});
    }
    m_customShortcuts.removeIf([&](const Shortcut &custom) { return custom.id == id; });
    deleted.wasFavorite = m_favorites.remove(id);
    saveCustomShortcuts();
    if (!deleted.entries.isEmpty())
        emit customShortcutsChanged();
    if (deleted.wasFavorite)
        emit favoritesChanged();
    return deleted;
}

void AppModel::restoreCustom(const DeletedCustom &deleted)
{
    const auto isThere = [&](const Shortcut &custom) {
        return custom.id == deleted.entries.constFirst().shortcut.id;
    };
    if (deleted.entries.isEmpty() || std::ranges::any_of(m_customShortcuts, isThere))
        return;
    for (const DeletedCustom::Entry &entry : deleted.entries)
        m_customShortcuts.insert(std::min(entry.position, m_customShortcuts.size()), entry.shortcut);
    saveCustomShortcuts();
    emit customShortcutsChanged();
    if (deleted.wasFavorite && !m_favorites.contains(deleted.entries.constFirst().shortcut.id)) {
        m_favorites.insert(deleted.entries.constFirst().shortcut.id);
        saveFavorites();
        emit favoritesChanged();
    }
}

void AppModel::recordMouseAction(const QString &title)
{
    const QString action = foldedForMatching(title, m_services.locale);
    if (!m_smartSuggestionsEnabled || action.isEmpty())
        return;
    const QList<Shortcut> all = allShortcuts();
    const auto matched = std::ranges::find_if(all, [&](const Shortcut &shortcut) {
        const QString known = foldedForMatching(shortcut.title, m_services.locale);
        return known.contains(action) || (!known.isEmpty() && action.contains(known));
    });
    if (matched == all.end())
        return;

    qint64 &count = m_usageCounts[matched->id];
    countUp(count);
    const bool suggests = m_learningModeEnabled || count > 1;
    m_services.defaults.setIntegerMap(DefaultsKeys::usageCounts, m_usageCounts);
    emit usageCountsChanged();
    if (!suggests)
        return;

    const QString reason = Localization::shared().text(
        u"Položku „%1“ jste použili myší. Příště to zkuste rychleji klávesami."_s,
        u"You used “%1” with the mouse. Try the faster keyboard shortcut next time."_s);
    const bool isOther = assign(m_latestSuggestion, std::optional(*matched));
    const bool hasOtherReason = assign(m_latestSuggestionReason, reason.arg(title));
    if (isOther)
        emit latestSuggestionChanged();
    if (hasOtherReason)
        emit latestSuggestionReasonChanged();
}

void AppModel::saveFavorites()
{
    m_services.defaults.setTextList(DefaultsKeys::favorites, {m_favorites.begin(), m_favorites.end()});
}

void AppModel::saveCustomShortcuts()
{
    m_services.defaults.setData(DefaultsKeys::customShortcuts, encodeShortcuts(m_customShortcuts));
}

} // namespace keyvora
