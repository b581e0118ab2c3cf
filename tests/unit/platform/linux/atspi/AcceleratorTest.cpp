// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/Accelerator.h"

#include "platform/MenuTree.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shift = MenuModifier::Shift;
constexpr int alt = MenuModifier::Option;
constexpr int control = MenuModifier::Control;
constexpr int plain = MenuModifier::NoCommand;

struct Row
{
    QString binding;
    QString title;
    std::optional<Accelerator> expected;
};

void check(const QList<Row> &rows)
{
    for (const Row &row : rows) {
        const auto found = parseKeyBinding(row.binding, row.title);
        EXPECT_EQ(found.has_value(), row.expected.has_value()) << qPrintable(row.binding);
        if (!found || !row.expected)
            continue;
        EXPECT_EQ(found->commandCharacter, row.expected->commandCharacter) << qPrintable(row.binding);
        EXPECT_EQ(found->modifiers, row.expected->modifiers) << qPrintable(row.binding);
    }
}

Accelerator keys(const QString &key, int modifiers)
{
    return {key, modifiers};
}

} // namespace

TEST(KeyBinding, OfGtk3)
{
    check({
        {u"n;<Alt>f:n;<Primary>n"_s, u"New"_s, keys(u"n"_s, control | plain)},
        {u"a;<Alt>f:a;<Primary><Shift>s"_s, u"Save As..."_s, keys(u"s"_s, control | shift | plain)},
        {u"a;<Alt>f:a;"_s, u"Save All"_s, {}},
        {u"n;<Alt>s:n;<Primary>g"_s, u"Find Next"_s, keys(u"g"_s, control | plain)},
        {u"r;<Alt>e:r;<Primary>y"_s, u"Redo"_s, keys(u"y"_s, control | plain)},
        {u"i;<Alt>v:i;<Primary>plus"_s, u"Zoom In"_s, keys(u"+"_s, control | plain)},
        {u"o;<Alt>v:o;<Primary>minus"_s, u"Zoom Out"_s, keys(u"−"_s, control | plain)},
        {u"n;<Alt>v:n;<Primary>0"_s, u"Normal Size"_s, keys(u"0"_s, control | plain)},
        {u"f;<Alt>v:f;F11"_s, u"Fullscreen"_s, keys(u"F11"_s, plain)},
        {u"n;<Alt>d:n;<Primary>Page_Down"_s, u"Next Tab"_s, keys(u"Page Down"_s, control | plain)},
        {u"l;<Alt>e:m:l;<Alt>Left"_s, u"Word Left"_s, keys(u"←"_s, alt | plain)},
        {u"d;<Alt>e:d;<Primary><Shift>Delete"_s, u"Delete Line"_s,
         keys(u"Delete"_s, control | shift | plain)},
        {u"l;<Alt>d:l;<Shift><Alt>l"_s, u"List"_s, keys(u"l"_s, shift | alt | plain)},
        {u"p;<Alt>e:p;<Primary>comma"_s, u"Preferences"_s, keys(u","_s, control | plain)},
        {u"u;<Alt>e:u;<Primary><Alt>u"_s, u"Convert"_s, keys(u"u"_s, control | alt | plain)},
        {u"e;<Alt>s:e;<Super>e"_s, u"Explore"_s, keys(u"e"_s, 0)},
        {u"<Alt>f;<Alt>f;"_s, u"File"_s, {}},
        {QString(), u"Separator"_s, {}},
    });
}

TEST(KeyBinding, OfGtk2)
{
    check({
        {u"i;<Alt>v:z:i;plus"_s, u"Zoom In"_s, keys(u"+"_s, plain)},
        {u"o;<Alt>v:z:o;minus"_s, u"Zoom Out"_s, keys(u"−"_s, plain)},
        {u"n;<Alt>l:k:n;Page_Down"_s, u"Next Layer"_s, keys(u"Page Down"_s, plain)},
        {u"r;<Alt>v:z:r;grave"_s, u"Revert Zoom"_s, keys(u"`"_s, plain)},
        {u"z;<Alt>t:z;z"_s, u"Zoom"_s, keys(u"z"_s, plain)},
    });
}

TEST(KeyBinding, OfLibreOffice)
{
    check({
        {u"t;<Alt>f:n:t;<Primary>n"_s, u"Text Document"_s, keys(u"n"_s, control | plain)},
        {u"u;<Alt>v:u;<Primary><Shift>j"_s, u"Full Screen"_s, keys(u"j"_s, control | shift | plain)},
        {u"u;<Alt>e:p:u;<Primary><Shift><Alt>v"_s, u"Unformatted"_s,
         keys(u"v"_s, control | shift | alt | plain)},
        {u"n;<Alt>i:f:n;<Shift><Alt>space"_s, u"Narrow Space"_s, keys(u"Space"_s, shift | alt | plain)},
        {u"p;<Alt>i:p;<Primary>Return"_s, u"Page Break"_s, keys(u"Return"_s, control | plain)},
        {u"n;<Alt>f:n;<Shift>F12"_s, u"Numbering"_s, keys(u"F12"_s, shift | plain)},
        {u";;<Primary><Shift>i"_s, u"Select Text"_s, keys(u"i"_s, control | shift | plain)},
        {u"\nU;\nS\nU;\nU"_s, u"Undo"_s, {}},
    });
}

TEST(KeyBinding, OfFirefox)
{
    check({
        {u"T;<Alt>F:T;<Control>T"_s, u"New Tab"_s, keys(u"T"_s, control | plain)},
        {u"W;<Alt>F:W;<Control><Shift>P"_s, u"New Private Window"_s, keys(u"P"_s, control | shift | plain)},
        {u"R;<Alt>E:R;<Control><Shift>Z"_s, u"Redo"_s, keys(u"Z"_s, control | shift | plain)},
        {u"F;<Alt>V:F;"_s, u"Full Screen"_s, {}},
        {u"<Alt>F;"_s, u"File"_s, {}},
        {u";;"_s, u"Separator"_s, {}},
    });
}

TEST(KeyBinding, OfQt)
{
    check({
        {u"Ctrl+N"_s, u"New"_s, keys(u"N"_s, control | plain)},
        {u"Ctrl+Shift+S"_s, u"Save As"_s, keys(u"S"_s, control | shift | plain)},
        {u"F3"_s, u"Find Next"_s, keys(u"F3"_s, plain)},
        {u"Ctrl++"_s, u"Zoom In"_s, keys(u"+"_s, control | plain)},
        {u"Ctrl+-"_s, u"Zoom Out"_s, keys(u"−"_s, control | plain)},
        {u"Ctrl+PgDown"_s, u"Next Tab"_s, keys(u"Page Down"_s, control | plain)},
        {u"Alt+Left"_s, u"Back"_s, keys(u"←"_s, alt | plain)},
        {u"Ctrl+Alt+1"_s, u"One"_s, keys(u"1"_s, control | alt | plain)},
        {u"Meta+E"_s, u"Explore"_s, keys(u"E"_s, 0)},
        {u"Del"_s, u"Delete"_s, keys(u"Delete"_s, plain)},
        {u"Backspace"_s, u"Up"_s, keys(u"Delete"_s, plain)},
        {u"Ctrl+Ins"_s, u"Copy"_s, keys(u"Insert"_s, control | plain)},
        {u"Ctrl+Space"_s, u"Complete"_s, keys(u"Space"_s, control | plain)},
        {u"Ctrl+,"_s, u"Configure"_s, keys(u","_s, control | plain)},
        {u"Ctrl+;"_s, u"Date"_s, keys(u";"_s, control | plain)},
        {u"Ctrl+Shift+Tab"_s, u"Previous"_s, keys(u"Tab"_s, control | shift | plain)},
        {u"Esc"_s, u"Stop"_s, keys(u"Esc"_s, plain)},
        {u"Ctrl+Return"_s, u"Send"_s, keys(u"Return"_s, control | plain)},
    });
}

TEST(KeyBinding, OfQtNeverIsAMnemonic)
{
    check({
        {u"Alt+e"_s, u"Close All"_s, {}},
        {u"Alt+S"_s, u"Show Output"_s, {}},
        {u"Alt+R"_s, u"Open Recent"_s, {}},
        {u"Alt+F"_s, u"File"_s, {}},
        {u"Alt+ž"_s, u"Uložit"_s, {}},
        // A letter that the title does not have cannot be its mnemonic.
        {u"Alt+X"_s, u"Run Command"_s, keys(u"X"_s, alt | plain)},
        {u"Alt+F4"_s, u"Quit"_s, keys(u"F4"_s, alt | plain)},
        {u"Ctrl+Alt+S"_s, u"Show Output"_s, keys(u"S"_s, control | alt | plain)},
    });
}

TEST(KeyBinding, OfSeveralStrokesIsNone)
{
    check({{u"Ctrl+K, Ctrl+L"_s, u"Lower Case"_s, {}}, {u"Ctrl+;, Ctrl+X"_s, u"Cut"_s, {}}});
}

TEST(KeyBinding, OfNumberPadAndOtherWordsForTheSameKey)
{
    check({
        {u"a;b;<Primary>KP_Add"_s, {}, keys(u"+"_s, control | plain)},
        {u"a;b;<Primary>KP_Subtract"_s, {}, keys(u"−"_s, control | plain)},
        {u"a;b;<Primary>KP_5"_s, {}, keys(u"5"_s, control | plain)},
        {u"a;b;KP_Enter"_s, {}, keys(u"Return"_s, plain)},
        {u"a;b;<Shift>ISO_Left_Tab"_s, {}, keys(u"Tab"_s, shift | plain)},
        {u"a;b;Prior"_s, {}, keys(u"Page Up"_s, plain)},
        {u"a;b;BackSpace"_s, {}, keys(u"Delete"_s, plain)},
        {u"a;b;Home"_s, {}, keys(u"Home"_s, plain)},
        {u"a;b;End"_s, {}, keys(u"End"_s, plain)},
        {u"a;b;Insert"_s, {}, keys(u"Insert"_s, plain)},
        {u"a;b;Up"_s, {}, keys(u"↑"_s, plain)},
        {u"a;b;Down"_s, {}, keys(u"↓"_s, plain)},
        {u"a;b;<Ctrl>zcaron"_s, {}, keys(u"ž"_s, control | plain)},
    });
}

TEST(KeyBinding, OfNoSenseIsNone)
{
    check({
        {u"a;b;<Primary>"_s, {}, {}},
        {u"a;b;<Primary"_s, {}, {}},
        {u"a;b;<Hyper>s"_s, {}, {}},
        {u"a;b;<>s"_s, {}, {}},
        {u"a;b;NoSuchKey"_s, {}, {}},
        {u"a;b;XF86AudioPlay"_s, {}, {}},
        {u"a;b;dead_acute"_s, {}, {}},
        {u"a;b;VoidSymbol"_s, {}, {}},
        {u"a;b;c;d"_s, {}, {}},
        {u"a;b;"_s + QString(100'000, u'x'), {}, {}},
        {QString(100'000, u';'), {}, {}},
        {u"Ctrl+"_s, {}, {}},
        {u"\uFFFD\uFFFD"_s, {}, {}},
        {QString(QChar(0)), {}, {}},
    });
}

TEST(GtkAccelerator, IsReadAlone)
{
    EXPECT_EQ(parseGtkAccelerator(u"<Control><Shift>s"), keys(u"s"_s, control | shift | plain));
    EXPECT_EQ(parseGtkAccelerator(u"<control>q"), keys(u"q"_s, control | plain));
    EXPECT_EQ(parseGtkAccelerator(u"F1"), keys(u"F1"_s, plain));
    EXPECT_EQ(parseGtkAccelerator(u""), std::nullopt);
}

} // namespace keyvora
