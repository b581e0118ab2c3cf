// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/KeyvoraApp.h"

#include "model/DefaultsKeys.h"
#include "model/FirstTime.h"
#include "model/PreferredLanguages.h"
#include "platform/Appearance.h"
#include "platform/NullWorkspace.h"
#include "platform/linux/LinuxStatusItem.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11Workspace.h"
#include "system/ApplicationIcon.h"

#include <QApplication>
#include <QDBusConnection>
#include <QFileInfo>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<Workspace> makeWorkspace(X11Connection *x11, const XdgDirectories &directories,
                                         const QStringList &languages)
{
    if (x11 == nullptr)
        return std::make_unique<NullWorkspace>();
    return std::make_unique<X11Workspace>(*x11, ApplicationNames(directories.dataDirs, languages));
}

/// The private folder of an installation, or the one beside a program that was just built.
QString userInterfaceLibrary()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString built = folder + u"/lib/keyvora/libkeyvora_ui.so"_s;
    return QFileInfo::exists(built) ? built : folder + u"/../" KEYVORA_PRIVATE_LIBDIR "/libkeyvora_ui.so"_s;
}

} // namespace

KeyvoraApp::KeyvoraApp(ApplicationInstance &instance, const QProcessEnvironment &environment)
    : m_directories(XdgDirectories::fromEnvironment(environment))
    , m_defaults(m_directories.configHome + u"/keyvora/defaults.json"_s)
    , m_windowFrames(m_directories.stateHome + u"/keyvora/windows.json"_s)
    , m_localization(m_defaults, preferredLanguages(environment))
    , m_x11(X11Connection::open())
    , m_workspace(makeWorkspace(m_x11.get(), m_directories, preferredLanguages(environment)))
    , m_loginItem(m_directories.configHome, m_directories.configDirs, QCoreApplication::applicationFilePath())
    , m_model(modelDependencies())
    , m_userInterface(userInterfaceLibrary(), [this] { return userInterfaceContext(); })
    , m_mainWindow(m_menu, m_userInterface)
    , m_statusItem(
          std::make_unique<LinuxStatusItem>(applicationIcon(), QDBusConnection::sessionBus(), m_x11.get()))
{
    connect(&instance, &ApplicationInstance::activated, this,
            [this](const QString &token) { m_mainWindow.show(token); });
    connect(&instance, &ApplicationInstance::actionActivated, this, &KeyvoraApp::performAction);
    connect(&m_menu, &AppMenu::quitRequested, qApp, &QCoreApplication::quit);
    connect(&m_terminationSignals, &TerminationSignals::terminationRequested, qApp, &QCoreApplication::quit);
    connect(m_statusItem.get(), &StatusItem::activated, this, [this](QPoint position) {
        if (UserInterface *userInterface = m_userInterface.get())
            userInterface->togglePanel(position);
    });
    const bool isByHand = !environment.value(u"XDG_ACTIVATION_TOKEN"_s).isEmpty() ||
                          !environment.value(u"DESKTOP_STARTUP_ID"_s).isEmpty();
    finishLaunching(isByHand);
}

KeyvoraApp::~KeyvoraApp() = default;

void KeyvoraApp::finishLaunching(bool isByHand)
{
    const Launch launch{
        .isFirstEver = isFirstTime(m_defaults, DefaultsKeys::hasLaunchedBefore),
        .isByHand = isByHand,
    };
    const auto decide = [this, launch](StatusItem::Host host) {
        if (opensMainWindow(launch, host))
            m_mainWindow.show();
    };
    if (launch.isFirstEver || m_statusItem->host() != StatusItem::Host::Unknown) {
        decide(m_statusItem->host());
        return;
    }
    // Only the first answer belongs to this launch; a tray that goes away later opens nothing.
    connect(m_statusItem.get(), &StatusItem::hostChanged, this, decide,
            static_cast<Qt::ConnectionType>(Qt::SingleShotConnection));
}

void KeyvoraApp::performAction(const QString &action, const QString &activationToken)
{
    if (action == "quit"_L1) {
        QCoreApplication::quit();
    } else if (action == "practice"_L1) {
        m_model.setSelection({.kind = SidebarSelection::Kind::practice});
        m_mainWindow.show(activationToken);
    }
}

AppModel::Dependencies KeyvoraApp::modelDependencies()
{
    return {
        .defaults = m_defaults,
        .workspace = *m_workspace,
        .loginItem = m_loginItem,
        .makeSmartObserver = {},
    };
}

UserInterface::Context KeyvoraApp::userInterfaceContext()
{
    m_appearance = std::make_unique<PortalAppearance>(QDBusConnection::sessionBus());
    return {
        .model = m_model,
        .menu = m_menu,
        .appearance = *m_appearance,
        .defaults = m_defaults,
        .windowFrames = m_windowFrames,
        .showMainWindow = [this] { m_mainWindow.show(); },
        .quit = [] { QCoreApplication::quit(); },
    };
}

} // namespace keyvora
