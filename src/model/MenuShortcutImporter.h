// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"
#include "model/MenuImportError.h"
#include "model/Shortcut.h"

#include <QFuture>
#include <QList>
#include <QObject>
#include <QString>

#include <variant>

namespace keyvora {

class Accessibility;
struct MenuTree;

/// The shortcuts of a menu, in its order with the entries of a submenu before the submenu's own, or why there
/// are none. A menu without shortcuts is no error.
using MenuImport = std::variant<QList<Shortcut>, MenuImportError>;

/// Turns the menus of other applications into shortcuts. Main thread only.
class MenuShortcutImporter : public QObject
{
public:
    /// The accessibility outlives the importer.
    explicit MenuShortcutImporter(Accessibility &accessibility);

    /// Reads the menu bar of the application with this process. Without trust, asks the user for it. The
    /// future may finish in another thread; it may end without a result when the importer dies.
    [[nodiscard]] QFuture<MenuImport> importFromApplication(qint32 pid, const QString &appName);

    /// The shortcuts that a menu bar declares, described in this language. Safe on any tree, also where
    /// elements are missing or form a circle: each element counts once. For any thread.
    [[nodiscard]] static QList<Shortcut> collect(const MenuTree &tree, const QString &appName,
                                                 AppLanguage language);

private:
    Accessibility &m_accessibility;
};

/// By which an import recognises a shortcut that the library has already: its title in lower case and its
/// keys. Texts that differ only in how Unicode composes them have the same.
QString menuSignature(const Shortcut &shortcut);

} // namespace keyvora
