// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/BareScreen.h"
#include "contract/Settling.h"
#include "contract/X11Input.h"
#include "fakes/FakeKeyboardLayout.h"
#include "platform/NullKeyboardLayout.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/X11KeyboardLayout.h"

#include <X11/keysym.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// Places on the keyboard, whatever stands there.
constexpr quint32 key2 = 11;
constexpr quint32 keyA = 38;
constexpr quint32 keyShift = 50;
constexpr quint32 keyPad7 = 79;

constexpr quint32 shift = 1;
constexpr quint32 secondGroup = 1U << 13U;

const KeyboardLayout::Key letterA{.plain = u"A"_s, .typed = u"A"_s, .latin = {}};

/// A desktop with an American keyboard, as the contract sees it.
class Desktop
{
public:
    virtual ~Desktop() = default;

    virtual KeyboardLayout &layout() = 0;
    /// Whether the desktop tells what is on the keys.
    [[nodiscard]] virtual bool tells() const { return true; }
    /// Waits until nothing more is going to be told.
    virtual void settle() {}
};

class FakeDesktop : public Desktop
{
public:
    FakeDesktop() { m_layout.setKey(keyA, letterA); }
    KeyboardLayout &layout() override { return m_layout; }

private:
    FakeKeyboardLayout m_layout;
};

class NullDesktop : public Desktop
{
public:
    KeyboardLayout &layout() override { return m_layout; }
    [[nodiscard]] bool tells() const override { return false; }

private:
    NullKeyboardLayout m_layout;
};

class X11Keys : public Desktop
{
public:
    KeyboardLayout &layout() override { return m_layout; }
    void settle() override { EXPECT_TRUE(settles(*m_connection)); }
    [[nodiscard]] bool setLayout(const QString &name) { return m_screen.run(u"setxkbmap"_s, {name}); }
    BareScreen &screen() { return m_screen; }

private:
    BareScreen m_screen;
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    X11Keyboard m_keyboard{*m_connection};
    X11KeyboardLayout m_layout{*m_connection, m_keyboard};
};

struct DesktopMaker
{
    const char *name;
    std::function<std::unique_ptr<Desktop>()> make;
};

void PrintTo(const DesktopMaker &maker, std::ostream *stream)
{
    *stream << maker.name;
}

class KeyboardLayoutContract : public testing::TestWithParam<DesktopMaker>
{
protected:
    Desktop &desktop() { return *m_desktop; }

private:
    std::unique_ptr<Desktop> m_desktop = GetParam().make();
};

} // namespace

TEST_P(KeyboardLayoutContract, TellsWhatIsOnAKeyOrNothing)
{
    desktop().settle();
    const auto key = desktop().layout().key(keyA, XK_a, 0);
    EXPECT_EQ(key.has_value(), desktop().tells());
    EXPECT_TRUE(!key || *key == letterA);
}

TEST_P(KeyboardLayoutContract, TellsNothingOfModifiers)
{
    desktop().settle();
    EXPECT_EQ(desktop().layout().key(keyShift, XK_Shift_L, 0), std::nullopt);
}

TEST_P(KeyboardLayoutContract, TellsNothingOfKeysThatThereAreNot)
{
    desktop().settle();
    EXPECT_EQ(desktop().layout().key(0, 0, 0), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(All, KeyboardLayoutContract,
                         testing::Values(DesktopMaker{"Fake",
                                                      [] {
                                                          return std::make_unique<FakeDesktop>();
                                                      }},
                                         DesktopMaker{"Null",
                                                      [] {
                                                          return std::make_unique<NullDesktop>();
                                                      }},
                                         DesktopMaker{"X11",
                                                      [] {
                                                          return std::make_unique<X11Keys>();
                                                      }}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(X11KeyboardLayout, KnowsNothingBeforeTheServerAnswers)
{
    X11Keys keys;
    EXPECT_EQ(keys.layout().key(keyA, XK_a, 0), std::nullopt);
    keys.settle();
    EXPECT_EQ(keys.layout().key(keyA, XK_a, 0), letterA);
}

TEST(X11KeyboardLayout, FollowsTheUsersLayout)
{
    X11Keys keys;
    ASSERT_TRUE(keys.setLayout(u"cz"_s));
    keys.settle();
    EXPECT_EQ(keys.layout().key(key2, XK_2, shift),
              (KeyboardLayout::Key{.plain = u"Ě"_s, .typed = u"2"_s, .latin = {}}));
    ASSERT_TRUE(keys.setLayout(u"us"_s));
    keys.settle();
    EXPECT_EQ(keys.layout().key(key2, XK_at, shift),
              (KeyboardLayout::Key{.plain = u"2"_s, .typed = u"@"_s, .latin = {}}));
}

TEST(X11KeyboardLayout, FollowsAKeyThatGetsAnotherSymbol)
{
    X11Keys keys;
    keys.settle();
    ASSERT_TRUE(keys.screen().run(u"xmodmap"_s, {u"-e"_s, u"keycode 38 = x X"_s}));
    keys.settle();
    EXPECT_EQ(keys.layout().key(keyA, XK_x, 0),
              (KeyboardLayout::Key{.plain = u"X"_s, .typed = u"X"_s, .latin = {}}));
}

TEST(X11KeyboardLayout, KnowsTheUsersOtherLayouts)
{
    X11Keys keys;
    ASSERT_TRUE(keys.setLayout(u"us,ru"_s));
    keys.settle();
    EXPECT_EQ(keys.layout().key(keyA, XK_a, 0), letterA);
    EXPECT_EQ(keys.layout().key(keyA, XK_Cyrillic_ef, secondGroup),
              (KeyboardLayout::Key{.plain = u"Ф"_s, .typed = u"Ф"_s, .latin = u"A"_s}));
}

TEST(X11KeyboardLayout, KnowsTheLockOfTheNumberPad)
{
    X11Keys keys;
    keys.settle();
    EXPECT_EQ(keys.layout().key(keyPad7, XK_KP_Home, 0)->plain, u"Home"_s);
    EXPECT_EQ(keys.layout().key(keyPad7, XK_KP_7, XCB_MOD_MASK_2)->plain, u"7"_s);
}

} // namespace keyvora
