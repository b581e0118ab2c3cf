// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

class AppMenu;
class UserInterfaceLoader;

/// Presents the main window: made when it is shown, hidden when it is closed.
class MainWindow
{
public:
    MainWindow(AppMenu &menu, UserInterfaceLoader &userInterface);

    /// Begins to make the window, which is to be shown soon.
    void prepare();

    /// Brings the window to the front with a menu in the current language.
    void show(const QString &activationToken = {});

private:
    AppMenu &m_menu;
    UserInterfaceLoader &m_userInterface;
};

} // namespace keyvora
