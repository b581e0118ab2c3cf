// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11InputMonitor.h"

#include "contract/BareScreen.h"
#include "contract/OtherProgram.h"
#include "contract/PlatformPrinters.h"
#include "contract/Settling.h"
#include "contract/X11Desktop.h"
#include "contract/X11Input.h"
#include "platform/linux/X11Keyboard.h"

#include <X11/keysym.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto shift = KeyModifier::Shift;
constexpr auto capsLock = KeyModifier::CapsLock;
constexpr auto control = KeyModifier::Control;
constexpr auto option = KeyModifier::Option;
constexpr auto command = KeyModifier::Command;
constexpr auto other = KeyModifier::Other;
constexpr KeyModifiers none;

/// A screen with a keyboard and a mouse, and a monitor that watches them.
class X11InputMonitorTest : public testing::Test
{
protected:
    using Told = QList<KeyModifiers>;
    using Presses = QList<PopupPress>;

    const BareScreen &screen() { return m_screen; }
    X11Desktop &desktop() { return m_desktop; }
    X11Input &input() { return m_input; }
    X11Connection &connection() { return *m_connection; }

    X11InputMonitor &makeMonitor()
    {
        m_monitor =
            std::make_unique<X11InputMonitor>(*m_connection, m_keyboard, [this] { return m_hasOwnFocus; });
        QObject::connect(m_monitor.get(), &InputMonitor::modifiersChanged, m_monitor.get(),
                         [this](KeyModifiers modifiers) { m_told.append(modifiers); });
        QObject::connect(m_monitor.get(), &InputMonitor::popupPressed, m_monitor.get(),
                         [this](const PopupPress &press) { m_presses.append(press); });
        EXPECT_TRUE(m_monitor->isAvailable());
        return *m_monitor;
    }

    /// A monitor whose wish the server knows.
    X11InputMonitor &watchModifiers()
    {
        X11InputMonitor &monitor = makeMonitor();
        monitor.watchModifiers();
        EXPECT_TRUE(settles(*m_connection));
        return monitor;
    }

    X11InputMonitor &watchPresses()
    {
        X11InputMonitor &monitor = makeMonitor();
        monitor.setWatchesPopupPresses(true);
        EXPECT_TRUE(settles(*m_connection));
        return monitor;
    }

    /// Clicks, and waits until the monitor has dealt with it.
    void click(QPoint position)
    {
        m_input.click(position);
        EXPECT_TRUE(settles(*m_connection));
    }

    void endMonitor() { m_monitor.reset(); }

    /// Whether a window of the program has the focus from now on; all before has been told.
    void setOwnFocus(bool hasOwnFocus)
    {
        EXPECT_TRUE(settles(*m_connection));
        m_hasOwnFocus = hasOwnFocus;
    }

    /// What has been told since the last time.
    Told told()
    {
        EXPECT_TRUE(settles(*m_connection));
        return std::exchange(m_told, {});
    }

    Presses presses()
    {
        EXPECT_TRUE(settles(*m_connection));
        return std::exchange(m_presses, {});
    }

    KeyModifiers current()
    {
        const QFuture<KeyModifiers> future = m_monitor->currentModifiers();
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
        return future.result();
    }

private:
    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    X11Input m_input{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    X11Keyboard m_keyboard{*m_connection};
    std::unique_ptr<X11InputMonitor> m_monitor;
    bool m_hasOwnFocus = false;
    Told m_told;
    Presses m_presses;
};

constexpr QRect popupArea(100, 100, 200, 200);
constexpr QPoint onPopup(150, 160);
constexpr QPoint besidePopup(400, 400);

} // namespace

TEST_F(X11InputMonitorTest, TellsEachModifierThatGoesDownOrUp)
{
    watchModifiers();
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_Shift_L});
    EXPECT_EQ(told(),
              (Told{control, control | option, control | option | shift, control | option, control, none}));
}

TEST_F(X11InputMonitorTest, KnowsModifiersByTheirKeys)
{
    const struct
    {
        xcb_keysym_t key;
        KeyModifiers modifiers;
    } rows[] = {
        {XK_Shift_L, shift},     {XK_Shift_R, shift},   {XK_Control_L, control},
        {XK_Control_R, control}, {XK_Alt_L, option},    {XK_Alt_R, option},
        {XK_Super_L, command},   {XK_Super_R, command}, {XK_ISO_Level3_Shift, other},
    };
    watchModifiers();
    for (const auto &[key, modifiers] : rows) {
        input().tapKeys({key});
        EXPECT_EQ(told(), (Told{modifiers, none})) << "symbol " << key;
    }
}

TEST_F(X11InputMonitorTest, TellsTheSecondOfTwoEqualKeysNotAtAll)
{
    watchModifiers();
    input().tapKeys({XK_Control_L, XK_Control_R});
    EXPECT_EQ(told(), (Told{control, none}));
}

TEST_F(X11InputMonitorTest, FollowsTheKeyboardsMapping)
{
    watchModifiers();
    ASSERT_TRUE(screen().run(u"xmodmap"_s, {u"-e"_s, u"clear mod1"_s, u"-e"_s, u"clear mod4"_s, u"-e"_s,
                                            u"add mod1 = Super_L"_s, u"-e"_s, u"add mod4 = Alt_L"_s}));
    EXPECT_EQ(told(), Told());
    input().tapKeys({XK_Alt_L});
    EXPECT_EQ(told(), (Told{option, none}));
    input().tapKeys({XK_Super_L});
    EXPECT_EQ(told(), (Told{command, none}));
}

TEST_F(X11InputMonitorTest, FollowsTheKeyboardsLayout)
{
    watchModifiers();
    const xcb_keycode_t rightOfSpace = input().keyOf(XK_Alt_R);
    ASSERT_TRUE(screen().run(u"setxkbmap"_s, {u"cz"_s}));
    ASSERT_EQ(input().keyOf(XK_Alt_R), 0);
    EXPECT_EQ(told(), Told());
    input().pressKeycode(rightOfSpace);
    input().releaseKeycode(rightOfSpace);
    EXPECT_EQ(told(), (Told{other, none}));
}

TEST_F(X11InputMonitorTest, CountsCapsLockAsLongAsItIsOn)
{
    watchModifiers();
    input().tapKeys({XK_Caps_Lock});
    EXPECT_EQ(told(), (Told{capsLock}));
    input().tapKeys({XK_Control_L});
    EXPECT_EQ(told(), (Told{capsLock | control, capsLock}));
    input().tapKeys({XK_Caps_Lock});
    EXPECT_EQ(told(), (Told{none}));
}

TEST_F(X11InputMonitorTest, KnowsCapsLockThatWasOnBefore)
{
    input().tapKeys({XK_Caps_Lock});
    watchModifiers();
    EXPECT_EQ(told(), Told());
    input().tapKeys({XK_Caps_Lock});
    EXPECT_EQ(told(), (Told{none}));
}

TEST_F(X11InputMonitorTest, NeverCountsNumLock)
{
    watchModifiers();
    input().tapKeys({XK_Num_Lock});
    EXPECT_EQ(told(), Told());
    EXPECT_EQ(current(), none);
    input().tapKeys({XK_Control_L, XK_Alt_L});
    EXPECT_EQ(told(), (Told{control, control | option, control, none}));
    input().pressKey(XK_Num_Lock);
    EXPECT_EQ(current(), none);
    input().releaseKey(XK_Num_Lock);
    EXPECT_EQ(told(), Told());
}

TEST_F(X11InputMonitorTest, HearsNoOtherKeys)
{
    watchModifiers();
    QList<int> events;
    QObject::connect(&connection(), &X11Connection::eventReceived, &connection(),
                     [&](const xcb_generic_event_t *event) { events.append(event->response_type); });
    input().tapKeys({XK_Control_L});
    EXPECT_EQ(told(), (Told{control, none}));
    // From here on the keyboard is the same as before.
    events.clear();
    for (const xcb_keysym_t key : QList<xcb_keysym_t>{XK_a, XK_space, XK_Return, XK_F10})
        input().tapKeys({key});
    EXPECT_EQ(told(), Told());
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(X11InputMonitorTest, TellsWhileAnotherProgramTakesAllInput)
{
    watchModifiers();
    desktop().grabInput();
    input().tapKeys({XK_Control_L, XK_Alt_L});
    EXPECT_EQ(told(), (Told{control, control | option, control, none}));
}

TEST_F(X11InputMonitorTest, SaysNothingOfAHoldInTheProgramItself)
{
    watchModifiers();
    setOwnFocus(true);
    input().tapKeys({XK_Control_L, XK_Alt_L});
    input().tapKeys({XK_Caps_Lock});
    EXPECT_EQ(told(), Told());
    setOwnFocus(false);
    input().tapKeys({XK_Control_L});
    EXPECT_EQ(told(), (Told{capsLock | control, capsLock}));
}

TEST_F(X11InputMonitorTest, TellsTheEndOfAHoldThatBeganElsewhere)
{
    watchModifiers();
    input().pressKey(XK_Control_L);
    input().pressKey(XK_Alt_L);
    setOwnFocus(true);
    EXPECT_EQ(told(), (Told{control, control | option}));
    input().releaseKey(XK_Control_L);
    EXPECT_EQ(told(), Told());
    input().releaseKey(XK_Alt_L);
    EXPECT_EQ(told(), (Told{none}));
}

TEST_F(X11InputMonitorTest, TellsOfAHoldAgainThatWasInterruptedInTheProgramItself)
{
    watchModifiers();
    input().pressKey(XK_Control_L);
    input().pressKey(XK_Alt_L);
    EXPECT_EQ(told(), (Told{control, control | option}));
    setOwnFocus(true);
    input().releaseKey(XK_Alt_L);
    EXPECT_EQ(told(), Told());
    setOwnFocus(false);
    input().pressKey(XK_Alt_L);
    EXPECT_EQ(told(), (Told{control | option}));
    input().releaseKey(XK_Alt_L);
    input().releaseKey(XK_Control_L);
    EXPECT_EQ(told(), (Told{control, none}));
}

TEST_F(X11InputMonitorTest, TellsTheEndOfAHoldThoughCapsLockIsOn)
{
    watchModifiers();
    input().pressKey(XK_Control_L);
    setOwnFocus(true);
    input().tapKeys({XK_Caps_Lock});
    EXPECT_EQ(told(), (Told{control}));
    input().releaseKey(XK_Control_L);
    EXPECT_EQ(told(), (Told{capsLock}));
}

TEST_F(X11InputMonitorTest, KnowsWhatIsHeldNow)
{
    makeMonitor();
    EXPECT_EQ(current(), none);
    input().tapKeys({XK_Caps_Lock});
    input().pressKey(XK_Control_L);
    input().pressKey(XK_Alt_L);
    EXPECT_EQ(current(), control | option | capsLock);
    setOwnFocus(true);
    EXPECT_EQ(current(), control | option | capsLock);
    input().releaseKey(XK_Alt_L);
    EXPECT_EQ(current(), control | capsLock);
    EXPECT_EQ(told(), Told());
}

TEST_F(X11InputMonitorTest, TellsPressesOnPopupsOfOtherPrograms)
{
    const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
    ASSERT_TRUE(program.isShown());
    watchPresses();
    input().click(onPopup);
    EXPECT_EQ(presses(), (Presses{{onPopup, program.pid()}}));
}

TEST_F(X11InputMonitorTest, TellsThemBeforeTheButtonIsReleased)
{
    const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
    watchPresses();
    input().movePointer(onPopup);
    input().pressButton(XCB_BUTTON_INDEX_1);
    EXPECT_EQ(presses(), (Presses{{onPopup, program.pid()}}));
    input().releaseButton(XCB_BUTTON_INDEX_1);
    EXPECT_EQ(presses(), Presses());
}

TEST_F(X11InputMonitorTest, TellsThemWhileAnotherProgramTakesAllInput)
{
    const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
    watchPresses();
    desktop().grabInput();
    input().click(onPopup);
    EXPECT_EQ(presses(), (Presses{{onPopup, program.pid()}}));
}

TEST_F(X11InputMonitorTest, TakesTheUppermostPopup)
{
    const OtherProgram menu(screen(), OtherProgram::Window::Popup, popupArea);
    const OtherProgram submenu(screen(), OtherProgram::Window::Popup, popupArea.translated(80, 0));
    watchPresses();
    for (const QPoint &position : {QPoint(120, 120), QPoint(250, 120)})
        click(position);
    EXPECT_EQ(presses(), (Presses{{{120, 120}, menu.pid()}, {{250, 120}, submenu.pid()}}));
}

TEST_F(X11InputMonitorTest, TakesNoNoticeOfOtherPresses)
{
    const OtherProgram popup(screen(), OtherProgram::Window::Popup, popupArea);
    const OtherProgram window(screen(), OtherProgram::Window::Ordinary, {0, 300, 100, 100});
    desktop().show(desktop().makeWindow({.geometry = {300, 0, 100, 100}, .isPopup = true})); // our own
    watchPresses();
    click(besidePopup);
    click({50, 350});
    click({350, 50});
    input().movePointer(onPopup);
    for (const int button : {2, 3, 4, 5, 6, 7, 8}) {
        input().pressButton(button);
        input().releaseButton(button);
    }
    EXPECT_EQ(presses(), Presses());
}

TEST_F(X11InputMonitorTest, HearsNeitherMotionNorKeys)
{
    // The first key may bring in another keyboard, which is told.
    input().tapKeys({XK_a});
    watchPresses();
    EXPECT_EQ(presses(), Presses());
    QList<int> events;
    QObject::connect(&connection(), &X11Connection::eventReceived, &connection(),
                     [&](const xcb_generic_event_t *event) { events.append(event->response_type); });
    input().movePointer(besidePopup);
    input().tapKeys({XK_a});
    EXPECT_EQ(presses(), Presses());
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(X11InputMonitorTest, TellsNothingOfAPopupThatIsGoneAlready)
{
    watchPresses();
    {
        const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
        input().click(onPopup);
    }
    EXPECT_EQ(presses(), Presses());
}

TEST_F(X11InputMonitorTest, StopsWatchingPresses)
{
    const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
    X11InputMonitor &monitor = watchPresses();
    // Not even one that was before is told any more.
    input().click(onPopup);
    monitor.setWatchesPopupPresses(false);
    EXPECT_EQ(presses(), Presses());
    click(onPopup);
    EXPECT_EQ(presses(), Presses());
    monitor.setWatchesPopupPresses(true);
    EXPECT_EQ(presses(), Presses());
    input().click(onPopup + QPoint(1, 1));
    EXPECT_EQ(presses(), (Presses{{onPopup + QPoint(1, 1), program.pid()}}));
}

TEST_F(X11InputMonitorTest, MayEndWhileItLooksAtAPress)
{
    const OtherProgram program(screen(), OtherProgram::Window::Popup, popupArea);
    for (int answers = 0; answers < 4; ++answers) {
        watchPresses();
        input().click(onPopup);
        // Each answer is one more to a question of the monitor, which is asked before.
        std::function<void(int)> endAfter = [&](int remaining) {
            connection().readProperty(connection().root(), "_KEYVORA_FENCE", 4,
                                      [&, remaining](const QByteArray &) {
                                          if (remaining == 0)
                                              endMonitor();
                                          else
                                              endAfter(remaining - 1);
                                      });
        };
        endAfter(answers);
        EXPECT_LE(presses().size(), 1);
    }
}

TEST_F(X11InputMonitorTest, AnswersThoughItEnds)
{
    X11InputMonitor &monitor = makeMonitor();
    input().pressKey(XK_Control_L);
    const QFuture<KeyModifiers> future = monitor.currentModifiers();
    endMonitor();
    EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
    EXPECT_EQ(future.result(), none);
}

TEST(X11InputMonitorWithoutExtensions, IsNotAvailable)
{
    const BareScreen screen({u"-extension"_s, u"X-Resource"_s});
    const auto connection = screen.open();
    ASSERT_NE(connection, nullptr);
    X11Keyboard keyboard(*connection);
    X11InputMonitor monitor(*connection, keyboard, [] { return false; });
    EXPECT_FALSE(monitor.isAvailable());
    bool isTold = false;
    QObject::connect(&monitor, &InputMonitor::modifiersChanged, &monitor, [&] { isTold = true; });
    QObject::connect(&monitor, &InputMonitor::popupPressed, &monitor, [&] { isTold = true; });
    monitor.watchModifiers();
    monitor.setWatchesPopupPresses(true);
    const OtherProgram program(screen, OtherProgram::Window::Popup, popupArea);
    X11Input input(screen.display());
    input.pressKey(XK_Control_L);
    input.click(onPopup);
    EXPECT_TRUE(settles(*connection));
    EXPECT_FALSE(isTold);
    const QFuture<KeyModifiers> future = monitor.currentModifiers();
    EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
    EXPECT_EQ(future.result(), none);
}

} // namespace keyvora
