// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/HotKeyCenter.h"

#include "fakes/FakeHotKeys.h"
#include "unit/QtPrinters.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A hot key that writes down the tokens with which it is pressed.
struct Keyboard
{
    FakeHotKeys hotKeys;
    QStringList tokens;
    std::unique_ptr<HotKeyCenter> center =
        std::make_unique<HotKeyCenter>(hotKeys, [this](const QString &token) { tokens.append(token); });
};

} // namespace

TEST(HotKeyCenter, RegistersNothingByItself)
{
    const Keyboard keyboard;
    EXPECT_EQ(keyboard.hotKeys.registrations(), 0);
}

TEST(HotKeyCenter, ActsEachTimeThatTheHotKeyIsPressed)
{
    Keyboard keyboard;
    keyboard.center->install();
    EXPECT_TRUE(keyboard.hotKeys.isRegistered());
    keyboard.hotKeys.press(u"first"_s);
    keyboard.hotKeys.press({});
    EXPECT_EQ(keyboard.tokens, (QStringList{u"first"_s, QString()}));
}

TEST(HotKeyCenter, RegistersOnceHoweverOftenItIsInstalled)
{
    Keyboard keyboard;
    keyboard.center->install();
    keyboard.center->install();
    EXPECT_EQ(keyboard.hotKeys.registrations(), 1);
    keyboard.hotKeys.press(u"token"_s);
    EXPECT_EQ(keyboard.tokens, QStringList{u"token"_s});
}

TEST(HotKeyCenter, LivesWithoutTheHotKeyWhereAnotherProgramHasIt)
{
    Keyboard keyboard;
    keyboard.hotKeys.setTaken(true);
    keyboard.center->install();
    keyboard.center->install();
    EXPECT_FALSE(keyboard.hotKeys.isRegistered());
    EXPECT_EQ(keyboard.hotKeys.registrations(), 1);
    keyboard.hotKeys.press(u"token"_s);
    EXPECT_TRUE(keyboard.tokens.isEmpty());
}

TEST(HotKeyCenter, IsNotCalledWhenItIsGone)
{
    Keyboard keyboard;
    keyboard.center->install();
    keyboard.center.reset();
    keyboard.hotKeys.press(u"token"_s);
    EXPECT_TRUE(keyboard.tokens.isEmpty());
}

} // namespace keyvora
