// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UserInterfaceLoader.h"

#include "unit/QtPrinters.h"
#include "unit/system/UserInterfaceGround.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(UserInterfaceLoader, GivesNothingWithoutTheLibraryAndSaysSo)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"missing.so"_s);
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(path);
    const TakenMessages taken;
    EXPECT_EQ(loader.get(), nullptr);
    ASSERT_EQ(taken.messages().size(), 1);
    EXPECT_TRUE(taken.messages().constFirst().startsWith("Keyvora's user interface cannot be loaded: "_L1));
    EXPECT_TRUE(taken.messages().constFirst().contains(path));
    EXPECT_EQ(ground.contexts(), 0);
}

TEST(UserInterfaceLoader, GivesNothingFromAnotherLibraryAndSaysSo)
{
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(QStringLiteral(KEYVORA_OTHER_LIBRARY));
    const TakenMessages taken;
    EXPECT_EQ(loader.get(), nullptr);
    ASSERT_EQ(taken.messages().size(), 1);
    EXPECT_TRUE(taken.messages().constFirst().startsWith("Keyvora's user interface cannot be loaded: "_L1))
        << taken.messages().constFirst().toStdString();
    EXPECT_EQ(ground.contexts(), 0);
}

TEST(UserInterfaceLoader, FindsALibraryThatWasMissingBefore)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"late.so"_s);
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(path);
    {
        const TakenMessages taken;
        EXPECT_EQ(loader.get(), nullptr);
    }
    ASSERT_TRUE(QFile::copy(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE), path));
    EXPECT_NE(loader.get(), nullptr);
}

TEST(UserInterfaceLoader, LoadsNothingBeforeItIsAsked)
{
    UserInterfaceGround ground;
    const UserInterfaceLoader loader = ground.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    EXPECT_EQ(ground.contexts(), 0);
}

TEST(UserInterfaceLoader, TellsWhatIsLoadedWithoutLoadingIt)
{
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    EXPECT_EQ(loader.loaded(), nullptr);
    EXPECT_EQ(ground.contexts(), 0);
    const UserInterface *userInterface = loader.get();
    ASSERT_NE(userInterface, nullptr);
    EXPECT_EQ(loader.loaded(), userInterface);
}

TEST(UserInterfaceLoader, HasNothingLoadedWithoutTheLibrary)
{
    const QTemporaryDir folder;
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(folder.filePath(u"missing.so"_s));
    const TakenMessages taken;
    EXPECT_EQ(loader.get(), nullptr);
    EXPECT_EQ(loader.loaded(), nullptr);
}

TEST(UserInterfaceLoader, MakesOneUserInterfaceAndKeepsIt)
{
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    UserInterface *userInterface = loader.get();
    ASSERT_NE(userInterface, nullptr);
    EXPECT_EQ(loader.get(), userInterface);
    EXPECT_EQ(ground.contexts(), 1);
}

TEST(UserInterfaceLoader, HandsTheContextOn)
{
    UserInterfaceGround ground;
    UserInterfaceLoader loader = ground.loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    UserInterface *userInterface = loader.get();
    ASSERT_NE(userInterface, nullptr);
    userInterface->togglePanel({}, {});
    EXPECT_EQ(ground.windowRequests(), 1);
    EXPECT_EQ(ground.quitRequests(), 0);
    userInterface->showMainWindow({});
    EXPECT_EQ(ground.quitRequests(), 1);
}

} // namespace keyvora
