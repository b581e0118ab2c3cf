// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "platform/ApplicationInstance.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/XdgAutostart.h"
#include "platform/linux/XdgDirectories.h"
#include "system/AppMenu.h"
#include "system/LaunchPolicy.h"
#include "system/MainWindow.h"
#include "system/UserInterfaceLoader.h"

#include <QObject>
#include <QProcessEnvironment>

#include <memory>

namespace keyvora {

class X11Connection;

/// Builds the program once, from the bottom up, owns all of it and wires it. The only place that names the
/// desktop's own classes.
class KeyvoraApp : public QObject
{
    Q_OBJECT

public:
    /// Starts the program: restores the state, follows the desktop, shows the tray icon and, where this
    /// launch calls for it, the main window. The environment is the one that the process was started with.
    KeyvoraApp(ApplicationInstance &instance, const QProcessEnvironment &environment);
    ~KeyvoraApp() override;

private:
    void finishLaunching(bool isByHand);
    void performAction(const QString &action, const QString &activationToken);
    [[nodiscard]] AppModel::Dependencies modelDependencies();
    [[nodiscard]] UserInterface::Context userInterfaceContext();

    XdgDirectories m_directories;
    Defaults m_defaults;
    Defaults m_windowFrames;
    Localization m_localization;
    std::unique_ptr<X11Connection> m_x11;
    std::unique_ptr<Workspace> m_workspace;
    XdgAutostart m_loginItem;
    AppModel m_model;
    AppMenu m_menu;
    std::unique_ptr<Appearance> m_appearance; ///< made with the user interface
    UserInterfaceLoader m_userInterface;
    MainWindow m_mainWindow;
    std::unique_ptr<StatusItem> m_statusItem;
    TerminationSignals m_terminationSignals;
};

} // namespace keyvora
