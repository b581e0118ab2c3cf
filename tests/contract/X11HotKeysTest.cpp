// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11HotKeys.h"

#include "contract/BareScreen.h"
#include "contract/Settling.h"
#include "contract/X11Desktop.h"
#include "contract/X11Input.h"
#include "platform/linux/X11Keyboard.h"
#include "unit/QtPrinters.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uint16_t controlAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
constexpr uint16_t lockStates[] = {0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

/// A screen with a keyboard, and hot keys that look at it.
class X11HotKeysTest : public testing::Test
{
protected:
    const BareScreen &screen() { return m_screen; }
    X11Desktop &desktop() { return m_desktop; }
    X11Input &input() { return m_input; }
    X11Connection &connection() { return *m_connection; }

    X11HotKeys &makeHotKeys()
    {
        m_hotKeys = std::make_unique<X11HotKeys>(*m_connection, m_keyboard);
        QObject::connect(m_hotKeys.get(), &HotKeys::pressed, m_hotKeys.get(),
                         [this](const QString &token) { m_tokens.append(token); });
        return *m_hotKeys;
    }

    X11HotKeys &makeRegistered()
    {
        X11HotKeys &hotKeys = makeHotKeys();
        hotKeys.registerHotKey();
        EXPECT_TRUE(becomesTrue([&] { return hotKeys.isRegistered(); }));
        return hotKeys;
    }

    void endHotKeys() { m_hotKeys.reset(); }

    void press() { m_input.tapKeys({XK_Control_L, XK_Alt_L, XK_space}); }

    /// The tokens of the presses that have been told since the last time.
    QStringList told()
    {
        EXPECT_TRUE(settles(*m_connection));
        return std::exchange(m_tokens, {});
    }

    bool takeElsewhere(uint16_t locks) { return m_desktop.grabKey(controlAlt | locks, space()); }
    void leaveElsewhere(uint16_t locks) { m_desktop.ungrabKey(controlAlt | locks, space()); }

    /// Whether another program could have the combination in every state of the locks.
    bool isFree()
    {
        for (const uint16_t locks : lockStates) {
            if (!takeElsewhere(locks))
                return false;
            leaveElsewhere(locks);
        }
        return true;
    }

private:
    xcb_keycode_t space() { return m_input.keyOf(XK_space); }

    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    X11Input m_input{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    X11Keyboard m_keyboard{*m_connection};
    std::unique_ptr<X11HotKeys> m_hotKeys;
    QStringList m_tokens;
};

} // namespace

TEST_F(X11HotKeysTest, TellsPressesWhateverTheLocksAre)
{
    makeRegistered();
    for (const xcb_keysym_t lock :
         QList<xcb_keysym_t>{XK_Num_Lock, XK_Caps_Lock, XK_Num_Lock, XK_Caps_Lock}) {
        press();
        EXPECT_EQ(told().size(), 1);
        input().tapKeys({lock});
    }
}

TEST_F(X11HotKeysTest, TellsTheServersTimeOfThePress)
{
    makeRegistered();
    press();
    press();
    const QStringList tokens = told();
    ASSERT_EQ(tokens.size(), 2);
    QList<qulonglong> times;
    for (const QString &token : tokens) {
        EXPECT_TRUE(token.startsWith("keyvora_TIME"_L1)) << token.toStdString();
        times.append(token.mid("keyvora_TIME"_L1.size()).toULongLong());
    }
    EXPECT_GT(times[0], 0);
    EXPECT_GE(times[1], times[0]);
}

TEST_F(X11HotKeysTest, TakesNoNoticeOfOtherCombinations)
{
    makeRegistered();
    input().tapKeys({XK_space});
    input().tapKeys({XK_Control_L, XK_space});
    input().tapKeys({XK_Alt_L, XK_space});
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_a});
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_Shift_L, XK_space});
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_Super_L, XK_space});
    EXPECT_EQ(told(), QStringList());
}

TEST_F(X11HotKeysTest, TellsAKeyThatIsHeldOnce)
{
    ASSERT_TRUE(screen().run(u"xset"_s, {u"r"_s, u"rate"_s, u"50"_s, u"50"_s}));
    makeRegistered();
    int keyPresses = 0;
    QObject::connect(&connection(), &X11Connection::eventReceived, &connection(),
                     [&](const xcb_generic_event_t *event) {
                         if (event->response_type == XCB_KEY_PRESS)
                             ++keyPresses;
                     });
    for (const xcb_keysym_t key : QList<xcb_keysym_t>{XK_Control_L, XK_Alt_L, XK_space})
        input().pressKey(key);
    EXPECT_TRUE(becomesTrue([&] { return keyPresses > 3; }));
    EXPECT_EQ(told().size(), 1);
    input().releaseKey(XK_space);
    input().pressKey(XK_space);
    EXPECT_EQ(told().size(), 1);
}

TEST_F(X11HotKeysTest, RegistersOnce)
{
    X11HotKeys &hotKeys = makeHotKeys();
    for (int time = 0; time < 3; ++time)
        hotKeys.registerHotKey();
    EXPECT_TRUE(becomesTrue([&] { return hotKeys.isRegistered(); }));
    hotKeys.registerHotKey();
    EXPECT_TRUE(hotKeys.isRegistered());
    press();
    EXPECT_EQ(told().size(), 1);
    EXPECT_TRUE(hotKeys.isRegistered());
}

TEST_F(X11HotKeysTest, StaysOffWhereAnotherProgramHasAnyOfIt)
{
    for (const uint16_t locks : lockStates) {
        ASSERT_TRUE(takeElsewhere(locks));
        X11HotKeys &hotKeys = makeHotKeys();
        hotKeys.registerHotKey();
        EXPECT_EQ(told(), QStringList());
        EXPECT_FALSE(hotKeys.isRegistered()) << "locks " << locks;
        press();
        EXPECT_EQ(told(), QStringList());
        // What it could have had, it has given back.
        leaveElsewhere(locks);
        EXPECT_TRUE(isFree()) << "locks " << locks;
    }
}

TEST_F(X11HotKeysTest, CanBeRegisteredOnceTheOtherProgramLeavesIt)
{
    ASSERT_TRUE(takeElsewhere(0));
    X11HotKeys &hotKeys = makeHotKeys();
    hotKeys.registerHotKey();
    EXPECT_EQ(told(), QStringList());
    leaveElsewhere(0);
    hotKeys.registerHotKey();
    EXPECT_TRUE(becomesTrue([&] { return hotKeys.isRegistered(); }));
    press();
    EXPECT_EQ(told().size(), 1);
}

TEST_F(X11HotKeysTest, GivesTheCombinationBack)
{
    X11HotKeys &hotKeys = makeRegistered();
    EXPECT_FALSE(isFree());
    hotKeys.unregisterHotKey();
    EXPECT_FALSE(hotKeys.isRegistered());
    press();
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(isFree());
    hotKeys.registerHotKey();
    EXPECT_TRUE(becomesTrue([&] { return hotKeys.isRegistered(); }));
    EXPECT_FALSE(isFree());
    endHotKeys();
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(isFree());
}

TEST_F(X11HotKeysTest, GivesBackWhatIsNotAnsweredYet)
{
    X11HotKeys &hotKeys = makeHotKeys();
    EXPECT_EQ(told(), QStringList()); // the keyboard is known
    hotKeys.registerHotKey();
    hotKeys.unregisterHotKey();
    EXPECT_EQ(told(), QStringList());
    EXPECT_FALSE(hotKeys.isRegistered());
    EXPECT_TRUE(isFree());
    hotKeys.registerHotKey();
    endHotKeys();
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(isFree());
}

TEST_F(X11HotKeysTest, FollowsNumLockToAnotherModifier)
{
    X11HotKeys &hotKeys = makeRegistered();
    ASSERT_TRUE(screen().run(u"xmodmap"_s, {u"-e"_s, u"clear mod2"_s, u"-e"_s, u"add mod3 = Num_Lock"_s}));
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(hotKeys.isRegistered());
    EXPECT_TRUE(takeElsewhere(XCB_MOD_MASK_2));
    EXPECT_FALSE(takeElsewhere(XCB_MOD_MASK_3));
    input().tapKeys({XK_Num_Lock});
    press();
    EXPECT_EQ(told().size(), 1);
}

TEST_F(X11HotKeysTest, TakesEitherAltWhereEachIsAModifierOfItsOwn)
{
    X11HotKeys &hotKeys = makeRegistered();
    ASSERT_TRUE(
        screen().run(u"xmodmap"_s, {u"-e"_s, u"remove mod1 = Alt_R"_s, u"-e"_s, u"add mod3 = Alt_R"_s}));
    EXPECT_EQ(told(), QStringList());
    EXPECT_TRUE(hotKeys.isRegistered());
    for (const quint32 alt : {quint32{XK_Alt_L}, quint32{XK_Alt_R}})
        input().tapKeys({XK_Control_L, alt, XK_space});
    EXPECT_EQ(told().size(), 2);
}

TEST_F(X11HotKeysTest, FollowsTheSpaceKeyToAnotherPlace)
{
    makeRegistered();
    const xcb_keycode_t before = input().keyOf(XK_space);
    ASSERT_TRUE(screen().run(
        u"xmodmap"_s, {u"-e"_s, u"keycode %1 = a"_s.arg(before), u"-e"_s, u"keysym Scroll_Lock = space"_s}));
    EXPECT_EQ(told(), QStringList());
    ASSERT_NE(input().keyOf(XK_space), before);
    press();
    EXPECT_EQ(told().size(), 1);
    EXPECT_TRUE(desktop().grabKey(controlAlt, before));
}

TEST_F(X11HotKeysTest, StaysOffWhenAnotherProgramHasTheNewPlace)
{
    X11HotKeys &hotKeys = makeRegistered();
    ASSERT_TRUE(takeElsewhere(XCB_MOD_MASK_3));
    ASSERT_TRUE(screen().run(u"xmodmap"_s, {u"-e"_s, u"clear mod2"_s, u"-e"_s, u"add mod3 = Num_Lock"_s}));
    EXPECT_EQ(told(), QStringList());
    EXPECT_FALSE(hotKeys.isRegistered());
    leaveElsewhere(XCB_MOD_MASK_3);
    EXPECT_TRUE(isFree());
}

TEST_F(X11HotKeysTest, TellsPressesInEveryLayout)
{
    ASSERT_TRUE(screen().run(u"setxkbmap"_s, {u"us,cz,ru"_s}));
    makeRegistered();
    for (const int layout : {0, 1, 2}) {
        input().switchLayout(layout);
        press();
        EXPECT_EQ(told().size(), 1) << "layout " << layout;
    }
}

} // namespace keyvora
