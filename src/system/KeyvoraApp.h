// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "platform/ApplicationInstance.h"
#include "platform/HotKeys.h"
#include "platform/InputMonitor.h"
#include "platform/linux/HelperUrlLoader.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/XdgAutostart.h"
#include "platform/linux/XdgDirectories.h"
#include "platform/linux/atspi/AtspiAccessibility.h"
#include "system/AppMenu.h"
#include "system/ContextOverlay.h"
#include "system/HoldToShowObserver.h"
#include "system/HotKeyCenter.h"
#include "system/LaunchPolicy.h"
#include "system/MainWindow.h"
#include "system/UserInterfaceLoader.h"
#include "update/UpdateChecker.h"

#include <QObject>
#include <QProcessEnvironment>

#include <memory>

namespace keyvora {

class Compositor;
class KeyboardLayout;
class X11Connection;
class X11GrabFocusFilter;
class X11Keyboard;

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
    void reachIntoDesktop();
    void finishLaunching(bool isByHand);
    /// Does what the start need not wait for.
    void settle();
    void end();
    void performAction(const QString &action, const QString &activationToken);
    [[nodiscard]] AppModel::Dependencies modelDependencies();
    [[nodiscard]] UserInterface::Context userInterfaceContext();

    QProcessEnvironment m_environment;
    XdgDirectories m_directories;
    Defaults m_defaults;
    Defaults m_windowFrames;
    Localization m_localization;
    std::unique_ptr<X11Connection> m_x11;
    std::unique_ptr<X11Keyboard> m_x11Keyboard; ///< as long as there is a connection
    std::unique_ptr<Workspace> m_workspace;
    XdgAutostart m_loginItem;
    AtspiAccessibility m_accessibility;
    std::unique_ptr<InputMonitor> m_input;
    std::unique_ptr<HotKeys> m_hotKeys;
    AppModel m_model;
    AppMenu m_menu;
    HelperUrlLoader m_urlLoader;
    UpdateChecker m_updates;
    // Made with the user interface.
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<Compositor> m_compositor;
    std::unique_ptr<KeyboardLayout> m_keyboardLayout;
    std::unique_ptr<X11GrabFocusFilter> m_grabFocusFilter;
    UserInterfaceLoader m_userInterface;
    MainWindow m_mainWindow;
    ContextOverlay m_overlay;
    HoldToShowObserver m_holdToShowObserver;
    HotKeyCenter m_hotKeyCenter;
    std::unique_ptr<StatusItem> m_statusItem;
    TerminationSignals m_terminationSignals;
    bool m_isEnding = false; ///< somebody asked for that, perhaps before anything was to be seen
};

} // namespace keyvora
