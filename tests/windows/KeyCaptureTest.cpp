// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "CompiledKeymap.h"
#include "contract/Settling.h"
#include "contract/Waiting.h"
#include "contract/X11Desktop.h"
#include "contract/X11Input.h"
#include "fakes/FakeAccessibility.h"
#include "model/Defaults.h"
#include "model/KeyPress.h"
#include "model/Localization.h"
#include "model/PracticeDraw.h"
#include "model/ShortcutLibrary.h"
#include "platform/linux/X11GrabFocusFilter.h"
#include "platform/linux/X11HotKeys.h"
#include "platform/linux/X11InputMonitor.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/X11KeyboardLayout.h"
#include "platform/linux/X11Workspace.h"
#include "system/HoldToShowObserver.h"
#include "ui/KeyCaptureItem.h"
#include "unit/QtPrinters.h"

#include <QProcess>
#include <QQmlEngine>
#include <QQuickView>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <X11/keysym.h>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// Places on the keyboard, whatever stands there.
constexpr xcb_keycode_t keyEscape = 9;
constexpr xcb_keycode_t keyEqual = 21;
constexpr xcb_keycode_t keyControl = 37;
constexpr xcb_keycode_t keyA = 38;
constexpr xcb_keycode_t keyF = 41;
constexpr xcb_keycode_t keyShift = 50;
constexpr xcb_keycode_t keyAlt = 64;
constexpr xcb_keycode_t keyAltGr = 108;
constexpr xcb_keycode_t keySuper = 133;

QStringList pressedKeys(const QSignalSpy &presses)
{
    QStringList keys;
    for (const QVariantList &arguments : presses)
        keys.append(keyTokens(arguments.constFirst().value<KeyPress>()).join(u' '));
    return keys;
}

/// Counts the keys that are released in a window.
class KeyReleases : public QObject
{
public:
    explicit KeyReleases(QWindow &window) { window.installEventFilter(this); }

    [[nodiscard]] qsizetype count() const { return m_count; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease)
            ++m_count;
        return QObject::eventFilter(watched, event);
    }

private:
    qsizetype m_count = 0;
};

/// The field in a window of its own, with the focus, and a second window of the same program.
class KeyCaptureTest : public testing::Test
{
protected:
    KeyCaptureTest()
    {
        m_engine.addImportPath(u"qrc:/qt/qml"_s);
        m_view.setInitialProperties({{u"reader"_s, QVariant::fromValue(&m_reader)}});
        m_view.setSource(QUrl(u"qrc:/qt/qml/Keyvora/KeyCaptureView.qml"_s));
        m_presses.emplace(&field(), &KeyCaptureItem::pressed);
        m_view.setGeometry(100, 100, 380, 92);
        m_other.setGeometry(600, 100, 200, 92);
        m_other.show();
        EXPECT_TRUE(becomesTrue([this] { return m_other.isActive(); }));
        m_view.show();
        EXPECT_TRUE(becomesTrue([this] { return m_view.isActive(); }));
        EXPECT_TRUE(settles(*m_connection));
    }

    ~KeyCaptureTest() override
    {
        // Each change has the window manager take its keys anew, so that none is made without need.
        if (m_hasOtherLayout)
            setLayout(u"us"_s);
    }

    KeyCaptureItem &field() { return *qobject_cast<KeyCaptureItem *>(m_view.rootObject()); }
    QQuickView &view() { return m_view; }
    QWindow &other() { return m_other; }
    X11Connection &connection() { return *m_connection; }
    X11Input &input() { return m_input; }
    X11Desktop &desktop() { return m_desktop; }
    const QSignalSpy &presses() { return *m_presses; }

    void capture()
    {
        field().forceActiveFocus();
        EXPECT_TRUE(field().isCapturing());
    }

    void release()
    {
        type({keyEscape});
        type({keyEscape});
        EXPECT_FALSE(field().isCapturing());
        EXPECT_TRUE(becomesTrue([this] { return desktop().grabKeyboard(); }));
        desktop().ungrabInput();
    }

    /// As a person types in the window: modifiers first. A key that comes back within the same millisecond is
    /// taken for one that repeats, so that this waits for the releases.
    void type(const QList<xcb_keycode_t> &keys)
    {
        const qsizetype released = m_releases.count() + keys.size();
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            input().pressKeycode(*key);
        for (auto key = keys.crbegin(); key != keys.crend(); ++key)
            input().releaseKeycode(*key);
        EXPECT_TRUE(becomesTrue([&] { return m_releases.count() == released; }));
    }

    void setLayout(const QString &name)
    {
        m_hasOtherLayout = true;
        EXPECT_EQ(QProcess::execute(u"setxkbmap"_s, {name}), 0);
        EXPECT_TRUE(settles(*m_connection));
    }

private:
    bool m_hasOtherLayout = false;
    QTemporaryDir m_folder;
    Defaults m_defaults{m_folder.filePath(u"defaults.json"_s)};
    Localization m_localization{m_defaults, {u"en-US"_s}};
    std::unique_ptr<X11Connection> m_connection = X11Connection::open();
    X11GrabFocusFilter m_grabFocusFilter;
    X11Keyboard m_keyboard{*m_connection};
    X11KeyboardLayout m_layout{*m_connection, m_keyboard};
    KeyReader m_reader{m_layout};
    X11Input m_input{qgetenv("DISPLAY")};
    X11Desktop m_desktop{qgetenv("DISPLAY")};
    QWindow m_other;
    QQmlEngine m_engine;
    QQuickView m_view{&m_engine, nullptr};
    KeyReleases m_releases{m_view};
    std::optional<QSignalSpy> m_presses;
};

/// What can be asked for: not what takes several steps, nor what the desktop's owner must not lose.
bool isAnswerable(const ShortcutSeed &seed)
{
    return !seed.keys.contains(u"→"_s) && !practiceUnsafeIDs().contains(seed.id);
}

/// The symbols that a key of the catalog may be.
QList<quint32> symbolsOf(const QString &key)
{
    static const QHash<QString, quint32> named{
        {u"Tab"_s, XK_Tab},   {u"Esc"_s, XK_Escape},    {u"Delete"_s, XK_BackSpace}, {u"Space"_s, XK_space},
        {u"←"_s, XK_Left},    {u"↑"_s, XK_Up},          {u"↓"_s, XK_Down},           {u"−"_s, XK_minus},
        {u"F2"_s, XK_F1 + 1}, {u"Return"_s, XK_Return},
    };
    if (const auto found = named.constFind(key); found != named.constEnd())
        return {*found};
    if (key == "`"_L1)
        return {XK_grave, XK_dead_grave};
    return {xkb_utf32_to_keysym(key.toLower().front().unicode())};
}

/// The keys of a combination on this keyboard; empty where it has no such key.
QList<xcb_keycode_t> keysOf(const QStringList &combination, const CompiledKeymap &keymap)
{
    constexpr quint32 shift = 1;
    const quint32 altGr = keymap.modifier("Mod5");
    const struct
    {
        QString token;
        xcb_keycode_t key;
    } modifiers[] = {{u"⌃"_s, keyControl}, {u"⌥"_s, keyAlt}, {u"⇧"_s, keyShift}, {u"⌘"_s, keySuper}};

    const QList<quint32> symbols = symbolsOf(combination.constLast());
    auto place = keymap.place(symbols, {0, shift, altGr});
    // Where the layout has other letters, people know the key by its American one.
    if (!place)
        place = CompiledKeymap("us").place(symbols, {0});
    if (!place)
        return {};
    QList<xcb_keycode_t> keys;
    for (const auto &[token, key] : modifiers) {
        if (combination.contains(token))
            keys.append(key);
    }
    if ((place->modifiers & shift) != 0 && !keys.contains(keyShift))
        keys.append(keyShift);
    if ((place->modifiers & altGr) != 0)
        keys.append(keyAltGr);
    keys.append(static_cast<xcb_keycode_t>(place->key));
    return keys;
}

class KeyCaptureOnLayout : public KeyCaptureTest, public testing::WithParamInterface<const char *>
{
};

} // namespace

TEST_P(KeyCaptureOnLayout, EveryAnswerOfTheCatalogCanBeGiven)
{
    setLayout(QString::fromUtf8(GetParam()));
    const CompiledKeymap keymap(GetParam());
    ASSERT_TRUE(keymap.isValid());
    capture();
    int asked = 0;
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        if (!isAnswerable(seed))
            continue;
        const QList<xcb_keycode_t> keys = keysOf(seed.keys, keymap);
        ASSERT_FALSE(keys.isEmpty()) << qPrintable(seed.id);
        type(keys);
        ++asked;
        ASSERT_EQ(presses().count(), asked) << qPrintable(seed.id);
        const auto press = presses().constLast().constFirst().value<KeyPress>();
        EXPECT_TRUE(isPressOf(press, seed.keys))
            << qPrintable(seed.id) << ": " << qPrintable(keyTokens(press).join(u' '));
    }
    EXPECT_EQ(asked, 91);
    EXPECT_TRUE(field().isCapturing());
    EXPECT_TRUE(view().isActive());
}

INSTANTIATE_TEST_SUITE_P(All, KeyCaptureOnLayout, testing::Values("us", "cz", "de", "ru"),
                         [](const auto &row) { return std::string(row.param); });

TEST_F(KeyCaptureTest, KeepsTheWindowManagersKeysWhileItHasTheFocus)
{
    capture();
    input().tapKeys({XK_Alt_L, XK_Tab});
    input().tapKeys({XK_Super_L});
    input().tapKeys({XK_Super_L, XK_d});
    EXPECT_TRUE(becomesTrue([this] { return presses().count() == 2; }));
    EXPECT_EQ(pressedKeys(presses()), (QStringList{u"⌥ Tab"_s, u"⌘ D"_s}));
    EXPECT_TRUE(view().isActive());
    EXPECT_TRUE(view().isExposed());

    release();
    input().tapKeys({XK_Super_L, XK_d});
    EXPECT_TRUE(becomesTrue([this] { return !view().isExposed(); }));
    input().tapKeys({XK_Super_L, XK_d});
    EXPECT_TRUE(becomesTrue([this] { return view().isExposed(); }));
    EXPECT_EQ(presses().count(), 2);
}

TEST_F(KeyCaptureTest, KeepsKeysThatOtherProgramsHaveTaken)
{
    ASSERT_TRUE(desktop().grabKey(XCB_MOD_MASK_4, keyF));
    ASSERT_TRUE(desktop().grabKey(XCB_MOD_MASK_ANY, keySuper));
    capture();
    input().tapKeys({XK_Super_L, XK_f});
    EXPECT_TRUE(becomesTrue([this] { return presses().count() == 1; }));
    EXPECT_EQ(pressedKeys(presses()), QStringList{u"⌘ F"_s});
}

TEST_F(KeyCaptureTest, KeepsTheProgramsOwnHotKeyAndHold)
{
    X11Keyboard keyboard(connection());
    X11HotKeys hotKeys(connection(), keyboard);
    const QSignalSpy calls(&hotKeys, &HotKeys::pressed);
    hotKeys.registerHotKey();
    X11Workspace workspace(connection(), ApplicationNames({}, {}));
    X11InputMonitor monitor(connection(), keyboard, [&] {
        const auto frontmost = workspace.frontmostApplication();
        return frontmost && frontmost->pid == static_cast<qint32>(QCoreApplication::applicationPid());
    });
    FakeAccessibility accessibility;
    int holds = 0;
    HoldToShowObserver observer(monitor, accessibility, {.show = [] {}, .hide = [] {}, .isVisible = {}},
                                [&](auto, auto) { ++holds; });
    observer.start();
    ASSERT_TRUE(settles(connection()));
    ASSERT_TRUE(hotKeys.isRegistered());

    capture();
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_space});
    EXPECT_TRUE(becomesTrue([this] { return presses().count() == 1; }));
    EXPECT_EQ(pressedKeys(presses()), QStringList{u"⌃ ⌥ Space"_s});
    ASSERT_TRUE(settles(connection()));
    EXPECT_EQ(calls.count(), 0);
    EXPECT_EQ(holds, 0);

    release();
    input().tapKeys({XK_Control_L, XK_Alt_L, XK_space});
    EXPECT_TRUE(becomesTrue([&] { return calls.count() == 1; }));
    EXPECT_EQ(presses().count(), 1);

    const xcb_window_t stranger = desktop().makeWindow({.pid = 1});
    desktop().show(stranger);
    EXPECT_TRUE(becomesTrue([&] {
        const auto frontmost = workspace.frontmostApplication();
        return frontmost && frontmost->pid == 1;
    }));
    input().tapKeys({XK_Control_L, XK_Alt_L});
    EXPECT_TRUE(becomesTrue([&] { return holds == 1; }));
    // The focus comes back before the next window asks for it.
    desktop().destroy(stranger);
    EXPECT_TRUE(becomesTrue([this] { return view().isActive() || other().isActive(); }));
}

TEST_F(KeyCaptureTest, GivesTheKeyboardBackWithTheFocus)
{
    capture();
    other().requestActivate();
    EXPECT_TRUE(becomesTrue([this] { return other().isActive(); }));
    EXPECT_FALSE(field().isCapturing());
    EXPECT_TRUE(becomesTrue([this] { return desktop().grabKeyboard(); }))
        << "the field's window is active: " << view().isActive();
    desktop().ungrabInput();
    view().requestActivate();
    EXPECT_TRUE(becomesTrue([this] { return field().isCapturing(); }));
    EXPECT_FALSE(desktop().grabKeyboard());
}

TEST_F(KeyCaptureTest, GivesTheKeyboardBackWhenItsWindowIsHidden)
{
    capture();
    EXPECT_FALSE(desktop().grabKeyboard());
    view().hide();
    EXPECT_TRUE(becomesTrue([this] { return !field().isCapturing() && desktop().grabKeyboard(); }));
    desktop().ungrabInput();
}

TEST_F(KeyCaptureTest, TakesTheKeyboardAnewInAWindowThatWasClosed)
{
    capture();
    view().close();
    EXPECT_FALSE(field().isCapturing());
    EXPECT_TRUE(becomesTrue([this] { return desktop().grabKeyboard(); }));
    desktop().ungrabInput();
    view().show();
    EXPECT_TRUE(becomesTrue([this] { return field().isCapturing(); }));
    EXPECT_FALSE(desktop().grabKeyboard());
}

TEST_F(KeyCaptureTest, GivesTheKeyboardBackWhenItEnds)
{
    capture();
    EXPECT_FALSE(desktop().grabKeyboard());
    view().setSource({});
    EXPECT_TRUE(becomesTrue([this] { return desktop().grabKeyboard(); }));
    desktop().ungrabInput();
}

TEST_F(KeyCaptureTest, TriesAgainWhenSomebodyElseHadTheKeyboard)
{
    ASSERT_TRUE(desktop().grabKeyboard());
    capture();
    desktop().ungrabInput();
    input().tapKeys({XK_a});
    EXPECT_TRUE(becomesTrue([this] { return presses().count() == 1; }));
    EXPECT_FALSE(desktop().grabKeyboard());
}

TEST_F(KeyCaptureTest, CountsAKeyThatRepeatsOnce)
{
    capture();
    for (const bool isRepeat : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier, keyA, XK_a, 0, {}, isRepeat);
        QCoreApplication::sendEvent(&field(), &event);
        EXPECT_TRUE(event.isAccepted());
    }
    EXPECT_EQ(pressedKeys(presses()), QStringList{u"⌃ A"_s});
}

TEST_F(KeyCaptureTest, TakesDeadKeysAtOnce)
{
    setLayout(u"cz"_s);
    capture();
    type({keySuper, keyEqual});
    EXPECT_EQ(pressedKeys(presses()), QStringList{u"⌘ ´"_s});
}

} // namespace keyvora
