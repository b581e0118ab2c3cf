// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The user's own data, out into a backup and in from one.

#include "model/AppModel.h"
#include "model/Backup.h"
#include "model/Defaults.h"

#include <algorithm>

namespace keyvora {

AppModel::Backup AppModel::backup() const
{
    QStringList favorites(m_favorites.begin(), m_favorites.end());
    // The same state makes the same file.
    favorites.sort();
    return {m_customShortcuts, favorites};
}

QByteArray AppModel::exportBackup() const
{
    return encodeBackup(backup());
}

bool AppModel::importBackup(const QByteArray &json)
{
    const auto backup = decodeBackup(json);
    return backup && mergeBackup(*backup);
}

bool AppModel::mergeBackup(const Backup &backup)
{
    QSet<QString> ids;
    ids.reserve(m_customShortcuts.size());
    for (const Shortcut &custom : m_customShortcuts)
        ids.insert(custom.id);
    QList<Shortcut> customShortcuts = m_customShortcuts;
    std::ranges::copy_if(backup.customShortcuts, std::back_inserter(customShortcuts),
                         [&](const Shortcut &shortcut) { return !ids.contains(shortcut.id); });
    QSet<QString> favorites = m_favorites;
    for (const QString &id : backup.favorites)
        favorites.insert(id);
    const bool hasNewShortcuts = customShortcuts.size() > m_customShortcuts.size();
    const bool hasNewFavorites = favorites.size() > m_favorites.size();
    // A store that grew without bound could not be read at the next start.
    if ((hasNewShortcuts || hasNewFavorites) &&
        !BackupAllowance().take({customShortcuts, {favorites.begin(), favorites.end()}}))
        return false;

    m_customShortcuts = customShortcuts;
    m_favorites = favorites;
    // In one write: half of a backup must not be what a crash leaves.
    m_services.defaults.changeTogether([this] {
        saveCustomShortcuts();
        saveFavorites();
    });
    if (hasNewShortcuts)
        emit customShortcutsChanged();
    if (hasNewFavorites)
        emit favoritesChanged();
    return true;
}

} // namespace keyvora
