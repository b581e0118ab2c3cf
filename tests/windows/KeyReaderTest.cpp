// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/KeyReader.h"

#include "fakes/FakeKeyboardLayout.h"
#include "unit/QtPrinters.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 knownKey = 11;
constexpr quint32 namelessKey = 12;
constexpr quint32 unknownKey = 13;

std::optional<KeyPress> press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text = {},
                              quint32 scanCode = unknownKey)
{
    FakeKeyboardLayout layout;
    layout.setKey(knownKey, {.plain = u"Ě"_s, .typed = u"2"_s, .latin = u"W"_s});
    layout.setKey(namelessKey, {});
    return KeyReader(layout).read(QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, 0, 0, text));
}

} // namespace

TEST(KeyReader, TellsWhatTheLayoutSays)
{
    EXPECT_EQ(press(Qt::Key_2, Qt::ShiftModifier | Qt::MetaModifier, u"2"_s, knownKey),
              (KeyPress{.shift = true, .command = true, .plain = u"Ě"_s, .typed = u"2"_s, .latin = u"W"_s}));
}

TEST(KeyReader, TellsNothingOfKeysWithoutAName)
{
    EXPECT_EQ(press(Qt::Key_VolumeMute, Qt::NoModifier, {}, namelessKey), std::nullopt);
    EXPECT_EQ(press(Qt::Key_VolumeMute, Qt::NoModifier), std::nullopt);
    EXPECT_EQ(press(Qt::Key_Shift, Qt::ShiftModifier), std::nullopt);
    EXPECT_EQ(press(Qt::Key_AltGr, Qt::GroupSwitchModifier), std::nullopt);
}

TEST(KeyReader, FallsBackOnTheToolkitsNames)
{
    EXPECT_EQ(press(Qt::Key_C, Qt::ControlModifier, u"\x03"_s),
              (KeyPress{.control = true, .plain = u"C"_s, .typed = u"C"_s}));
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ShiftModifier | Qt::AltModifier),
              (KeyPress{.option = true, .shift = true, .plain = u"Tab"_s, .typed = u"Tab"_s}));
    EXPECT_EQ(press(Qt::Key_Left, Qt::ShiftModifier),
              (KeyPress{.shift = true, .plain = u"←"_s, .typed = u"←"_s}));
    EXPECT_EQ(press(Qt::Key_Minus, Qt::MetaModifier, u"-"_s),
              (KeyPress{.command = true, .plain = u"−"_s, .typed = u"−"_s}));
}

TEST(KeyReader, TakesNoSignThatNeedsShiftForAKey)
{
    const auto plus = press(Qt::Key_Plus, Qt::ShiftModifier | Qt::MetaModifier, u"+"_s);
    EXPECT_EQ(plus, (KeyPress{.shift = true, .command = true, .plain = {}, .typed = u"+"_s}));
    EXPECT_TRUE(isPressOf(*plus, {u"⌘"_s, u"+"_s}));
    EXPECT_TRUE(isPressOf(*plus, {u"⇧"_s, u"⌘"_s, u"+"_s}));
}

} // namespace keyvora
