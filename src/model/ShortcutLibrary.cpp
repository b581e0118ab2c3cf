// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ShortcutLibrary.h"

#include <QHash>

namespace keyvora {

namespace {

QList<Shortcut> build(AppLanguage language)
{
    const bool czech = language == AppLanguage::Czech;
    QList<Shortcut> shortcuts;
    shortcuts.reserve(ShortcutLibrary::seeds().size());
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        shortcuts.append({
            .id = seed.id,
            .title = czech ? seed.titleCS : seed.titleEN,
            .keys = seed.keys,
            .category = seed.category,
            .apps = seed.apps,
            .detail = czech ? seed.detailCS : seed.detailEN,
        });
    }
    return shortcuts;
}

} // namespace

const QList<Shortcut> &ShortcutLibrary::all(AppLanguage language)
{
    static QHash<AppLanguage, QList<Shortcut>> cache;
    auto cached = cache.find(language);
    if (cached == cache.end())
        cached = cache.insert(language, build(language));
    return *cached;
}

} // namespace keyvora
