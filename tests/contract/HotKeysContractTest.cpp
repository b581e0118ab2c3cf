// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/BareScreen.h"
#include "contract/Settling.h"
#include "contract/X11Desktop.h"
#include "contract/X11Input.h"
#include "fakes/FakeHotKeys.h"
#include "platform/NullHotKeys.h"
#include "platform/linux/X11HotKeys.h"
#include "platform/linux/X11Keyboard.h"

#include <X11/keysym.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A desktop with a keyboard, as the contract sees it.
class Desktop
{
public:
    virtual ~Desktop() = default;

    virtual HotKeys &hotKeys() = 0;
    /// Whether there can be hot keys at all.
    [[nodiscard]] virtual bool offers() const { return true; }
    virtual void press() = 0;
    /// Another program takes the combination, or leaves it.
    virtual void setTaken(bool isTaken) = 0;
    /// Waits until nothing more is going to happen.
    virtual void settle() = 0;
};

class FakeDesktop : public Desktop
{
public:
    HotKeys &hotKeys() override { return m_hotKeys; }
    void press() override { m_hotKeys.press(u"token"_s); }
    void setTaken(bool isTaken) override { m_hotKeys.setTaken(isTaken); }
    void settle() override {}

private:
    FakeHotKeys m_hotKeys;
};

class NullDesktop : public Desktop
{
public:
    HotKeys &hotKeys() override { return m_hotKeys; }
    [[nodiscard]] bool offers() const override { return false; }
    void press() override {}
    void setTaken(bool /*isTaken*/) override {}
    void settle() override { QCoreApplication::processEvents(); }

private:
    NullHotKeys m_hotKeys;
};

class RealDesktop : public Desktop
{
public:
    HotKeys &hotKeys() override { return m_hotKeys; }
    void press() override { m_input.tapKeys({XK_Control_L, XK_Alt_L, XK_space}); }
    void setTaken(bool isTaken) override
    {
        constexpr uint16_t combination = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
        const xcb_keycode_t space = m_input.keyOf(XK_space);
        if (isTaken)
            EXPECT_TRUE(m_desktop.grabKey(combination, space));
        else
            m_desktop.ungrabKey(combination, space);
    }
    void settle() override { EXPECT_TRUE(settles(*m_connection)); }

private:
    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    X11Input m_input{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    X11Keyboard m_keyboard{*m_connection};
    X11HotKeys m_hotKeys{*m_connection, m_keyboard};
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<Desktop>()> makeDesktop;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class HotKeysContract : public testing::TestWithParam<Row>
{
protected:
    HotKeysContract()
    {
        QObject::connect(&hotKeys(), &HotKeys::pressed, &hotKeys(), [this](const QString &token) {
            EXPECT_FALSE(token.isEmpty());
            ++m_told;
        });
    }

    Desktop &desktop() { return *m_desktop; }
    HotKeys &hotKeys() { return m_desktop->hotKeys(); }

    bool registersHotKey()
    {
        hotKeys().registerHotKey();
        desktop().settle();
        return hotKeys().isRegistered();
    }

    /// How many signals come of so many presses.
    int toldOf(int presses)
    {
        m_told = 0;
        for (int press = 0; press < presses; ++press)
            desktop().press();
        desktop().settle();
        return m_told;
    }

private:
    std::unique_ptr<Desktop> m_desktop = GetParam().makeDesktop();
    int m_told = 0;
};

} // namespace

TEST_P(HotKeysContract, TellsNothingBeforeItIsRegistered)
{
    desktop().settle();
    EXPECT_FALSE(hotKeys().isRegistered());
    EXPECT_EQ(toldOf(2), 0);
}

TEST_P(HotKeysContract, TellsEachPress)
{
    EXPECT_EQ(registersHotKey(), desktop().offers());
    EXPECT_EQ(toldOf(3), desktop().offers() ? 3 : 0);
}

TEST_P(HotKeysContract, TellsAPressOnceHoweverOftenItIsRegistered)
{
    EXPECT_EQ(registersHotKey(), desktop().offers());
    EXPECT_EQ(registersHotKey(), desktop().offers());
    EXPECT_EQ(toldOf(1), desktop().offers() ? 1 : 0);
    hotKeys().unregisterHotKey();
    EXPECT_EQ(toldOf(1), 0);
}

TEST_P(HotKeysContract, TellsNothingOnceItIsGivenBack)
{
    hotKeys().unregisterHotKey();
    EXPECT_EQ(registersHotKey(), desktop().offers());
    hotKeys().unregisterHotKey();
    EXPECT_FALSE(hotKeys().isRegistered());
    EXPECT_EQ(toldOf(2), 0);
    EXPECT_EQ(registersHotKey(), desktop().offers());
    EXPECT_EQ(toldOf(1), desktop().offers() ? 1 : 0);
}

TEST_P(HotKeysContract, StaysOffWhileAnotherProgramHasIt)
{
    desktop().setTaken(true);
    EXPECT_FALSE(registersHotKey());
    EXPECT_EQ(toldOf(2), 0);
    desktop().setTaken(false);
    EXPECT_EQ(toldOf(2), 0);
    EXPECT_EQ(registersHotKey(), desktop().offers());
    EXPECT_EQ(toldOf(2), desktop().offers() ? 2 : 0);
}

INSTANTIATE_TEST_SUITE_P(Backends, HotKeysContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeDesktop>();
                                             }},
                                         Row{"Null",
                                             [] {
                                                 return std::make_unique<NullDesktop>();
                                             }},
                                         Row{"X11",
                                             [] {
                                                 return std::make_unique<RealDesktop>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

} // namespace keyvora
