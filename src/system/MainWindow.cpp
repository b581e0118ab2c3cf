// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/MainWindow.h"

#include "system/AppMenu.h"
#include "system/UserInterfaceLoader.h"

namespace keyvora {

MainWindow::MainWindow(AppMenu &menu, UserInterfaceLoader &userInterface)
    : m_menu(menu)
    , m_userInterface(userInterface)
{
}

void MainWindow::prepare()
{
    if (UserInterface *userInterface = m_userInterface.get())
        userInterface->prepareMainWindow();
}

void MainWindow::show(const QString &activationToken)
{
    m_menu.install();
    if (UserInterface *userInterface = m_userInterface.get())
        userInterface->showMainWindow(activationToken);
}

} // namespace keyvora
