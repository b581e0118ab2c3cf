// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/BareScreen.h"
#include "contract/OtherProgram.h"
#include "contract/PlatformPrinters.h"
#include "contract/Settling.h"
#include "contract/X11Input.h"
#include "fakes/FakeInputMonitor.h"
#include "platform/NullInputMonitor.h"
#include "platform/linux/X11InputMonitor.h"
#include "platform/linux/X11Keyboard.h"

#include <X11/keysym.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

namespace {

constexpr auto control = KeyModifier::Control;
constexpr auto option = KeyModifier::Option;
constexpr KeyModifiers none;
constexpr QPoint onPopup(120, 130);

/// A desktop with a keyboard, a mouse and an open menu, as the contract sees it.
class Desktop
{
public:
    virtual ~Desktop() = default;

    virtual InputMonitor &monitor() = 0;
    /// Whether anybody may watch.
    [[nodiscard]] virtual bool offers() const { return true; }
    virtual void setControlDown(bool isDown) = 0;
    virtual void setOptionDown(bool isDown) = 0;
    virtual void pressPopup() = 0;
    [[nodiscard]] virtual qint32 popupPid() const = 0;
    /// Waits until nothing more is going to happen.
    virtual void settle() = 0;
};

class FakeDesktop : public Desktop
{
public:
    InputMonitor &monitor() override { return m_monitor; }
    void setControlDown(bool isDown) override { setDown(control, isDown); }
    void setOptionDown(bool isDown) override { setDown(option, isDown); }
    void pressPopup() override { m_monitor.press({onPopup, popupPid()}); }
    [[nodiscard]] qint32 popupPid() const override { return 4321; }
    void settle() override {}

private:
    void setDown(KeyModifier modifier, bool isDown)
    {
        m_held.setFlag(modifier, isDown);
        m_monitor.changeModifiers(m_held);
    }

    FakeInputMonitor m_monitor;
    KeyModifiers m_held;
};

/// A desktop that lets nobody watch.
class ClosedDesktop : public FakeDesktop
{
public:
    ClosedDesktop() { static_cast<FakeInputMonitor &>(monitor()).setAvailable(false); }
    [[nodiscard]] bool offers() const override { return false; }
};

class NullDesktop : public Desktop
{
public:
    InputMonitor &monitor() override { return m_monitor; }
    [[nodiscard]] bool offers() const override { return false; }
    void setControlDown(bool /*isDown*/) override {}
    void setOptionDown(bool /*isDown*/) override {}
    void pressPopup() override {}
    [[nodiscard]] qint32 popupPid() const override { return 0; }
    void settle() override { QCoreApplication::processEvents(); }

private:
    NullInputMonitor m_monitor;
};

class RealDesktop : public Desktop
{
public:
    InputMonitor &monitor() override { return m_monitor; }
    void setControlDown(bool isDown) override { setDown(XK_Control_L, isDown); }
    void setOptionDown(bool isDown) override { setDown(XK_Alt_L, isDown); }
    void pressPopup() override { m_input.click(onPopup); }
    [[nodiscard]] qint32 popupPid() const override { return m_menu.pid(); }
    void settle() override { EXPECT_TRUE(settles(*m_connection)); }

private:
    void setDown(xcb_keysym_t key, bool isDown)
    {
        if (isDown)
            m_input.pressKey(key);
        else
            m_input.releaseKey(key);
    }

    BareScreen m_screen;
    OtherProgram m_menu{m_screen, OtherProgram::Window::Popup, {100, 100, 50, 50}};
    X11Input m_input{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    X11Keyboard m_keyboard{*m_connection};
    X11InputMonitor m_monitor{*m_connection, m_keyboard, [] {
                                  return false;
                              }};
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<Desktop>()> makeDesktop;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class InputMonitorContract : public testing::TestWithParam<Row>
{
protected:
    using Told = QList<KeyModifiers>;
    using Presses = QList<PopupPress>;

    InputMonitorContract()
    {
        QObject::connect(&monitor(), &InputMonitor::modifiersChanged, &monitor(),
                         [this](KeyModifiers modifiers) { m_told.append(modifiers); });
        QObject::connect(&monitor(), &InputMonitor::popupPressed, &monitor(),
                         [this](const PopupPress &press) { m_presses.append(press); });
    }

    Desktop &desktop() { return *m_desktop; }
    InputMonitor &monitor() { return m_desktop->monitor(); }

    /// What has been told since the last time.
    Told told()
    {
        desktop().settle();
        return std::exchange(m_told, {});
    }
    Presses presses()
    {
        desktop().settle();
        return std::exchange(m_presses, {});
    }

    KeyModifiers current()
    {
        const QFuture<KeyModifiers> future = monitor().currentModifiers();
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
        return future.result();
    }

    /// What a monitor of this desktop has to tell.
    [[nodiscard]] Told seen(const Told &modifiers) const { return m_desktop->offers() ? modifiers : Told(); }
    [[nodiscard]] Presses seen(int presses) const
    {
        return m_desktop->offers() ? Presses(presses, {onPopup, m_desktop->popupPid()}) : Presses();
    }

    void tapControlAndOption()
    {
        desktop().setControlDown(true);
        desktop().setOptionDown(true);
        desktop().setControlDown(false);
        desktop().setOptionDown(false);
    }

private:
    std::unique_ptr<Desktop> m_desktop = GetParam().makeDesktop();
    Told m_told;
    Presses m_presses;
};

} // namespace

TEST_P(InputMonitorContract, SaysWhetherItIsAvailable)
{
    EXPECT_EQ(monitor().isAvailable(), desktop().offers());
}

TEST_P(InputMonitorContract, WatchesNothingUntilItIsToldTo)
{
    tapControlAndOption();
    desktop().pressPopup();
    EXPECT_EQ(told(), Told());
    EXPECT_EQ(presses(), Presses());
}

TEST_P(InputMonitorContract, TellsModifiersOnceHoweverOftenItIsToldTo)
{
    monitor().watchModifiers();
    monitor().watchModifiers();
    desktop().settle();
    tapControlAndOption();
    EXPECT_EQ(told(), seen({control, control | option, option, none}));
    EXPECT_EQ(presses(), Presses());
}

TEST_P(InputMonitorContract, KnowsWhatIsHeldNow)
{
    EXPECT_EQ(current(), none);
    desktop().setControlDown(true);
    desktop().setOptionDown(true);
    EXPECT_EQ(current(), desktop().offers() ? control | option : none);
    desktop().setControlDown(false);
    desktop().setOptionDown(false);
    EXPECT_EQ(current(), none);
}

TEST_P(InputMonitorContract, TellsPressesAsLongAsItIsToldTo)
{
    for (int time = 0; time < 2; ++time) {
        monitor().setWatchesPopupPresses(true);
        monitor().setWatchesPopupPresses(true);
        desktop().settle();
        desktop().pressPopup();
        desktop().pressPopup();
        EXPECT_EQ(presses(), seen(2));
        monitor().setWatchesPopupPresses(false);
        desktop().settle();
        desktop().pressPopup();
        EXPECT_EQ(presses(), Presses());
    }
    tapControlAndOption();
    EXPECT_EQ(told(), Told());
}

INSTANTIATE_TEST_SUITE_P(Backends, InputMonitorContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeDesktop>();
                                             }},
                                         Row{"FakeClosed",
                                             [] {
                                                 return std::make_unique<ClosedDesktop>();
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
