// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// Why the menu of an application could not be imported.
enum class MenuImportError : quint8 {
    permission,  ///< the desktop does not let the program read other applications
    application, ///< there is no application to read, or it is this program itself
    menu,        ///< the application shows no menu bar
};

/// What to tell the user about it, in the current language.
QString errorDescription(MenuImportError error);

} // namespace keyvora
