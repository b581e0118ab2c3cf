// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fakes/FakeAccessibility.h"
#include "fakes/FakeAppearance.h"
#include "fakes/FakeCompositor.h"
#include "fakes/FakeKeyboardLayout.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeUrlLoader.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "system/UserInterfaceLoader.h"
#include "update/UpdateChecker.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <QTemporaryDir>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

/// Takes the messages of the program away from the one who watches over them.
class TakenMessages
{
public:
    TakenMessages()
        : m_previous(qInstallMessageHandler(&take))
    {
        s_messages.clear();
    }
    ~TakenMessages() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(TakenMessages)

    [[nodiscard]] const QStringList &messages() const { return s_messages; }

private:
    static void take(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &message)
    {
        s_messages.append(message);
    }

    static inline QStringList s_messages;
    QtMessageHandler m_previous;
};

/// What the screens stand on, and a count of how often they asked for it.
class UserInterfaceGround
{
public:
    UserInterfaceLoader loader(const QString &libraryPath)
    {
        return {libraryPath, [this] {
                    ++m_contexts;
                    return UserInterface::Context{
                        .model = m_model,
                        .menu = m_menu,
                        .accessibility = m_accessibility,
                        .appearance = m_appearance,
                        .compositor = m_compositor,
                        .keyboardLayout = m_keyboardLayout,
                        .updates = m_updates,
                        .defaults = m_defaults,
                        .windowFrames = m_windowFrames,
                        .environment = m_environment,
                        .showMainWindow = [this] { ++m_windowRequests; },
                        .quit = [this] { ++m_quitRequests; },
                        .toggleOverlay = [] {},
                        .grantTrust = [] {},
                        .activateWindow = [](const QWindow &, const QString &) { return false; },
                    };
                }};
    }

    [[nodiscard]] int contexts() const { return m_contexts; }
    [[nodiscard]] int windowRequests() const { return m_windowRequests; }
    [[nodiscard]] int quitRequests() const { return m_quitRequests; }

private:
    QTemporaryDir m_folder;
    Defaults m_defaults{m_folder.filePath(u"defaults.json"_s)};
    Defaults m_windowFrames{m_folder.filePath(u"windows.json"_s)};
    Localization m_localization{m_defaults, {u"en-US"_s}};
    FakeWorkspace m_workspace;
    FakeLoginItem m_loginItem;
    FakeAccessibility m_accessibility;
    AppModel m_model{AppModel::Dependencies{
        .defaults = m_defaults,
        .workspace = m_workspace,
        .loginItem = m_loginItem,
        .accessibility = m_accessibility,
        .makeSmartObserver = {},
        .makeUuid = {},
    }};
    AppMenu m_menu;
    FakeUrlLoader m_urlLoader;
    UpdateChecker m_updates{m_defaults, m_urlLoader, {}, [](const QUrl &) {
                            }};
    FakeAppearance m_appearance;
    FakeCompositor m_compositor;
    FakeKeyboardLayout m_keyboardLayout;
    QProcessEnvironment m_environment;
    int m_contexts = 0;
    int m_windowRequests = 0;
    int m_quitRequests = 0;
};

} // namespace keyvora
