// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/KeyvoraApp.h"

#include "model/DefaultsKeys.h"
#include "model/FirstTime.h"
#include "model/PreferredLanguages.h"
#include "platform/Appearance.h"
#include "platform/NullCompositor.h"
#include "platform/NullHotKeys.h"
#include "platform/NullInputMonitor.h"
#include "platform/NullKeyboardLayout.h"
#include "platform/NullWorkspace.h"
#include "platform/linux/LinuxStatusItem.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/X11Activation.h"
#include "platform/linux/X11Compositor.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11GrabFocusFilter.h"
#include "platform/linux/X11HotKeys.h"
#include "platform/linux/X11InputMonitor.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/X11KeyboardLayout.h"
#include "platform/linux/X11Workspace.h"
#include "system/ApplicationIcon.h"
#include "system/SmartShortcutObserver.h"
#include "system/UnusedMemory.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDesktopServices>
#include <QFileInfo>
#include <QTimer>

#include <chrono>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// By then the desktop has answered what the start asks of it, and the window is there if it is to be.
constexpr std::chrono::seconds settlingTime{2};

std::unique_ptr<Workspace> makeWorkspace(X11Connection *x11, const XdgDirectories &directories,
                                         const QStringList &languages)
{
    if (x11 == nullptr)
        return std::make_unique<NullWorkspace>();
    return std::make_unique<X11Workspace>(*x11, ApplicationNames(directories.dataDirs, languages));
}

std::unique_ptr<X11Keyboard> makeX11Keyboard(X11Connection *x11)
{
    return x11 == nullptr ? nullptr : std::make_unique<X11Keyboard>(*x11);
}

std::unique_ptr<InputMonitor> makeInputMonitor(X11Connection *x11, X11Keyboard *keyboard,
                                               const Workspace &workspace)
{
    if (x11 == nullptr)
        return std::make_unique<NullInputMonitor>();
    // The toolkit notices a lost focus only a tenth of a second later.
    return std::make_unique<X11InputMonitor>(*x11, *keyboard, [&workspace] {
        const auto frontmost = workspace.frontmostApplication();
        return frontmost && frontmost->pid == static_cast<qint32>(QCoreApplication::applicationPid());
    });
}

std::unique_ptr<HotKeys> makeHotKeys(X11Connection *x11, X11Keyboard *keyboard)
{
    if (x11 == nullptr)
        return std::make_unique<NullHotKeys>();
    return std::make_unique<X11HotKeys>(*x11, *keyboard);
}

std::unique_ptr<Compositor> makeCompositor(X11Connection *x11)
{
    if (x11 == nullptr)
        return std::make_unique<NullCompositor>();
    return std::make_unique<X11Compositor>(*x11);
}

std::unique_ptr<KeyboardLayout> makeKeyboardLayout(X11Connection *x11, const X11Keyboard *keyboard)
{
    if (x11 == nullptr)
        return std::make_unique<NullKeyboardLayout>();
    return std::make_unique<X11KeyboardLayout>(*x11, *keyboard);
}

bool activateWindow(const QWindow &window, const QString &activationToken, X11Connection *x11)
{
    // On X11 the toolkit asks with the time of the last input that it got itself, which was long before.
    const auto time = timeOfActivationToken(activationToken);
    return time && x11 != nullptr && activateX11Window(window, *time, *x11);
}

/// A file of the private folder of an installation, or of the one beside a program that was just built.
QString privateFile(const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString built = folder + u"/lib/keyvora/"_s + name;
    return QFileInfo::exists(built) ? built : folder + u"/../" KEYVORA_PRIVATE_LIBDIR "/"_s + name;
}

} // namespace

KeyvoraApp::KeyvoraApp(ApplicationInstance &instance, const QProcessEnvironment &environment)
    : m_environment(environment)
    , m_directories(XdgDirectories::fromEnvironment(environment))
    , m_defaults(m_directories.configHome + u"/keyvora/defaults.json"_s)
    , m_windowFrames(m_directories.stateHome + u"/keyvora/windows.json"_s)
    , m_localization(m_defaults, preferredLanguages(environment))
    , m_x11(X11Connection::open())
    , m_x11Keyboard(makeX11Keyboard(m_x11.get()))
    , m_workspace(makeWorkspace(m_x11.get(), m_directories, preferredLanguages(environment)))
    , m_loginItem(m_directories.configHome, m_directories.configDirs, QCoreApplication::applicationFilePath())
    , m_accessibility({})
    , m_input(makeInputMonitor(m_x11.get(), m_x11Keyboard.get(), *m_workspace))
    , m_hotKeys(makeHotKeys(m_x11.get(), m_x11Keyboard.get()))
    , m_model(modelDependencies())
    , m_urlLoader(privateFile(u"keyvora-update-fetch"_s))
    , m_updates(m_defaults, m_urlLoader, QCoreApplication::applicationVersion(), &QDesktopServices::openUrl)
    , m_userInterface(privateFile(u"libkeyvora_ui.so"_s), [this] { return userInterfaceContext(); })
    , m_mainWindow(m_menu, m_userInterface)
    , m_overlay(m_userInterface)
    , m_holdToShowObserver(*m_input, m_accessibility,
                           {.show = [this] { m_overlay.show(); },
                            .hide = [this] { m_overlay.hide(); },
                            .isVisible =
                                [this] {
                                    return m_overlay.isVisible();
                                }})
    , m_hotKeyCenter(*m_hotKeys,
                     [this](const QString &token) {
                         m_holdToShowObserver.cancelHold();
                         m_mainWindow.show(token);
                     })
    , m_statusItem(std::make_unique<LinuxStatusItem>(trayIcon(m_directories.dataDirs),
                                                     QDBusConnection::sessionBus(), m_x11.get()))
{
    connect(&instance, &ApplicationInstance::activated, this,
            [this](const QString &token) { m_mainWindow.show(token); });
    connect(&instance, &ApplicationInstance::actionActivated, this, &KeyvoraApp::performAction);
    // A program that goes on would write the same files as the next one.
    connect(&instance, &ApplicationInstance::sessionLost, this, &KeyvoraApp::end);
    connect(&m_menu, &AppMenu::quitRequested, this, &KeyvoraApp::end);
    connect(&m_terminationSignals, &TerminationSignals::terminationRequested, this, &KeyvoraApp::end);
    connect(m_statusItem.get(), &StatusItem::activated, this, [this](QPoint position, const QString &token) {
        if (UserInterface *userInterface = m_userInterface.get())
            userInterface->togglePanel(position, token);
    });
    reachIntoDesktop();
    const bool isByHand = !environment.value(u"XDG_ACTIVATION_TOKEN"_s).isEmpty() ||
                          !environment.value(u"DESKTOP_STARTUP_ID"_s).isEmpty();
    connect(&instance, &ApplicationInstance::caughtUp, this, [this, isByHand] { finishLaunching(isByHand); });
    QTimer::singleShot(settlingTime, this, &KeyvoraApp::settle);
    // The bus has not answered yet, and is not waited for in vain.
    if (isFirstTime(m_defaults, DefaultsKeys::hasLaunchedBefore))
        m_mainWindow.prepare();
}

KeyvoraApp::~KeyvoraApp() = default;

void KeyvoraApp::reachIntoDesktop()
{
    connect(&m_accessibility, &Accessibility::trustRequested, this, [this] {
        if (UserInterface *userInterface = m_userInterface.get())
            userInterface->askForTrust();
    });
    connect(&m_model, &AppModel::latestSuggestionChanged, this, [this] {
        if (UserInterface *userInterface = m_userInterface.get())
            userInterface->showSuggestion();
    });
    connect(&m_overlay, &ContextOverlay::hidden, &m_holdToShowObserver, &HoldToShowObserver::overlayHidden);
    m_hotKeyCenter.install();
    m_holdToShowObserver.start();
}

void KeyvoraApp::finishLaunching(bool isByHand)
{
    if (m_isEnding)
        return;
    const Launch launch{
        .isFirstEver = isFirstTime(m_defaults, DefaultsKeys::hasLaunchedBefore),
        .isByHand = isByHand,
    };
    const auto decide = [this, launch](StatusItem::Host host) {
        if (opensMainWindow(launch, host))
            m_mainWindow.show();
    };
    if (launch.isFirstEver || m_statusItem->host() != StatusItem::Host::Unknown) {
        rememberFirstTime(m_defaults, DefaultsKeys::hasLaunchedBefore);
        decide(m_statusItem->host());
        return;
    }
    // Only the first answer belongs to this launch; a tray that goes away later opens nothing.
    connect(m_statusItem.get(), &StatusItem::hostChanged, this, decide,
            static_cast<Qt::ConnectionType>(Qt::SingleShotConnection));
}

void KeyvoraApp::settle()
{
    if (m_isEnding)
        return;
    // Most of what starting takes is never needed again. Windows give it back when they close.
    if (m_userInterface.loaded() == nullptr)
        returnUnusedMemory();
    m_updates.checkForUpdate();
}

void KeyvoraApp::end()
{
    m_isEnding = true;
    QCoreApplication::quit();
}

void KeyvoraApp::performAction(const QString &action, const QString &activationToken)
{
    if (action == "quit"_L1) {
        end();
    } else if (action == "practice"_L1) {
        m_model.setSelection({.kind = SidebarSelection::Kind::practice});
        m_mainWindow.show(activationToken);
    } else if (action == "overlay"_L1) {
        m_overlay.toggle();
    }
}

AppModel::Dependencies KeyvoraApp::modelDependencies()
{
    return {
        .defaults = m_defaults,
        .workspace = *m_workspace,
        .loginItem = m_loginItem,
        .accessibility = m_accessibility,
        .makeSmartObserver =
            [this](MenuUseObserver::MenuActionHandler handler) {
                return std::make_unique<SmartShortcutObserver>(*m_input, m_accessibility, std::move(handler));
            },
    };
}

UserInterface::Context KeyvoraApp::userInterfaceContext()
{
    m_appearance = std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
    m_compositor = makeCompositor(m_x11.get());
    m_keyboardLayout = makeKeyboardLayout(m_x11.get(), m_x11Keyboard.get());
    m_grabFocusFilter = std::make_unique<X11GrabFocusFilter>();
    return {
        .model = m_model,
        .menu = m_menu,
        .accessibility = m_accessibility,
        .appearance = *m_appearance,
        .compositor = *m_compositor,
        .keyboardLayout = *m_keyboardLayout,
        .updates = m_updates,
        .defaults = m_defaults,
        .windowFrames = m_windowFrames,
        .environment = m_environment,
        .showMainWindow = [this] { m_mainWindow.show(); },
        .quit = [this] { end(); },
        .toggleOverlay = [this] { m_overlay.toggle(); },
        // Whether the desktop obeyed shows in the next check.
        .grantTrust = [this] { static_cast<void>(m_accessibility.grantTrust()); },
        .activateWindow = [this](const QWindow &window,
                                 const QString &token) { return activateWindow(window, token, m_x11.get()); },
    };
}

} // namespace keyvora
