// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UserInterfaceLoader.h"

#include "fakes/FakeAppearance.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "unit/QtPrinters.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

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
class Program
{
public:
    UserInterfaceLoader loader(const QString &libraryPath)
    {
        return {libraryPath, [this] {
                    ++m_contexts;
                    return UserInterface::Context{
                        .model = m_model,
                        .menu = m_menu,
                        .appearance = m_appearance,
                        .defaults = m_defaults,
                        .windowFrames = m_windowFrames,
                        .showMainWindow = [this] { ++m_windowRequests; },
                        .quit = [this] { ++m_quitRequests; },
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
    AppModel m_model{AppModel::Dependencies{
        .defaults = m_defaults,
        .workspace = m_workspace,
        .loginItem = m_loginItem,
        .makeSmartObserver = {},
        .makeUuid = {},
    }};
    AppMenu m_menu;
    FakeAppearance m_appearance;
    int m_contexts = 0;
    int m_windowRequests = 0;
    int m_quitRequests = 0;
};

} // namespace

TEST(UserInterfaceLoader, GivesNothingWithoutTheLibraryAndSaysSo)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"missing.so"_s);
    Program program;
    UserInterfaceLoader loader = program.loader(path);
    const TakenMessages taken;
    EXPECT_EQ(loader.get(), nullptr);
    ASSERT_EQ(taken.messages().size(), 1);
    EXPECT_TRUE(taken.messages().constFirst().startsWith("Keyvora's user interface cannot be loaded: "_L1));
    EXPECT_TRUE(taken.messages().constFirst().contains(path));
    EXPECT_EQ(program.contexts(), 0);
}

TEST(UserInterfaceLoader, GivesNothingFromAnotherLibraryAndSaysSo)
{
    Program program;
    UserInterfaceLoader loader = program.loader(QStringLiteral(KEYVORA_OTHER_LIBRARY));
    const TakenMessages taken;
    EXPECT_EQ(loader.get(), nullptr);
    ASSERT_EQ(taken.messages().size(), 1);
    EXPECT_TRUE(taken.messages().constFirst().startsWith("Keyvora's user interface cannot be loaded: "_L1))
        << taken.messages().constFirst().toStdString();
    EXPECT_EQ(program.contexts(), 0);
}

TEST(UserInterfaceLoader, FindsALibraryThatWasMissingBefore)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"late.so"_s);
    Program program;
    UserInterfaceLoader loader = program.loader(path);
    {
        const TakenMessages taken;
        EXPECT_EQ(loader.get(), nullptr);
    }
    ASSERT_TRUE(QFile::copy(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE), path));
    EXPECT_NE(loader.get(), nullptr);
}

TEST(UserInterfaceLoader, LoadsNothingBeforeItIsAsked)
{
    Program program;
    const UserInterfaceLoader loader = program.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    EXPECT_EQ(program.contexts(), 0);
}

TEST(UserInterfaceLoader, MakesOneUserInterfaceAndKeepsIt)
{
    Program program;
    UserInterfaceLoader loader = program.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    UserInterface *userInterface = loader.get();
    ASSERT_NE(userInterface, nullptr);
    EXPECT_EQ(loader.get(), userInterface);
    EXPECT_EQ(program.contexts(), 1);
}

TEST(UserInterfaceLoader, HandsTheContextOn)
{
    Program program;
    UserInterfaceLoader loader = program.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    UserInterface *userInterface = loader.get();
    ASSERT_NE(userInterface, nullptr);
    userInterface->togglePanel({});
    EXPECT_EQ(program.windowRequests(), 1);
    EXPECT_EQ(program.quitRequests(), 0);
    userInterface->showMainWindow({});
    EXPECT_EQ(program.quitRequests(), 1);
}

} // namespace keyvora
