// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace keyvora {

/// What a window tells about the program that owns it.
struct WindowIdentity
{
    QString windowClass;      ///< second part of WM_CLASS
    QString windowInstance;   ///< first part of WM_CLASS
    QString gtkApplicationId; ///< _GTK_APPLICATION_ID

    friend bool operator==(const WindowIdentity &, const WindowIdentity &) = default;
    friend size_t qHash(const WindowIdentity &identity, size_t seed = 0)
    {
        return qHashMulti(seed, identity.windowClass, identity.windowInstance, identity.gtkApplicationId);
    }
};

/// Finds the names of applications in the desktop entries. Reads many small files: for worker threads.
class ApplicationNames
{
public:
    /// `dataDirs` holds the folders that have an "applications" folder, the user's own first.
    ApplicationNames(QStringList dataDirs, QStringList languages);

    /// For each the localized name of the entry that fits best; none where no entry fits. StartupWMClass
    /// decides before the application id, the entry's file name, and the name of the program that it starts.
    /// Each entry is read once, for however many windows.
    [[nodiscard]] QHash<WindowIdentity, QString> find(const QList<WindowIdentity> &identities) const;

    /// What to call an application without an entry: its window class.
    [[nodiscard]] static QString fallback(const WindowIdentity &identity);

private:
    QStringList m_dataDirs;
    QStringList m_languages;
};

} // namespace keyvora
