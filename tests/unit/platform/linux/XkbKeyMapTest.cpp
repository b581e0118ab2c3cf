// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XkbKeyMap.h"

#include "CompiledKeymap.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// Places on the keyboard, whatever stands there.
constexpr quint32 key1 = 10;
constexpr quint32 key2 = 11;
constexpr quint32 keyMinus = 20;
constexpr quint32 keyEqual = 21;
constexpr quint32 keyQ = 24;
constexpr quint32 keyY = 29;
constexpr quint32 keyBracket = 34;
constexpr quint32 keyA = 38;
constexpr quint32 keyH = 43;
constexpr quint32 keySemicolon = 47;
constexpr quint32 keyGrave = 49;
constexpr quint32 keyTab = 23;
constexpr quint32 keyShift = 50;
constexpr quint32 keyAlt = 64;
constexpr quint32 keyNumLock = 77;
constexpr quint32 keyPad7 = 79;
constexpr quint32 keyPadMinus = 82;
constexpr quint32 keyPadSlash = 106;
constexpr quint32 keyAltGr = 108;
constexpr quint32 keyMute = 121;

constexpr quint32 shift = 1;

/// A keyboard with these layouts.
class Keyboard
{
public:
    explicit Keyboard(const QByteArray &layouts, const QByteArray &variants = {},
                      const QByteArray &options = {})
        : m_compiled(layouts, variants, options)
    {
        m_map.firstKey = m_compiled.firstKey();
        m_map.numLockBit = numLock();
        for (quint32 key = m_compiled.firstKey(); key <= m_compiled.lastKey(); ++key) {
            XkbKeyMap::Key onKey;
            for (quint32 group = 0; group < m_compiled.groupsOf(key); ++group)
                onKey.groups.append({.symbol = m_compiled.symbol(key, 0, group),
                                     .symbolWithNumLock = m_compiled.symbol(key, numLock(), group)});
            m_map.keys.append(onKey);
        }
    }

    [[nodiscard]] quint32 numLock() const { return realBit("Mod2"); }
    [[nodiscard]] quint32 altGr() const { return realBit("Mod5"); }
    [[nodiscard]] const XkbKeyMap &map() const { return m_map; }

    /// What the program is told of a key that is pressed while these modifiers are on.
    [[nodiscard]] std::optional<KeyboardLayout::Key> press(quint32 key, quint32 modifiers = 0,
                                                           quint32 group = 0) const
    {
        return m_map.key(key, m_compiled.symbol(key, modifiers, group), modifiers | group << 13U);
    }

private:
    [[nodiscard]] quint32 realBit(const char *name) const { return m_compiled.modifier(name); }

    CompiledKeymap m_compiled;
    XkbKeyMap m_map;
};

using Key = KeyboardLayout::Key;

Key key(const QString &plain, const QString &typed, const QString &latin = {})
{
    return {.plain = plain, .typed = typed, .latin = latin};
}

} // namespace

void PrintTo(const KeyboardLayout::Key &key, std::ostream *stream)
{
    *stream << key.plain.toStdString() << " / " << key.typed.toStdString() << " / "
            << key.latin.toStdString();
}

TEST(XkbKeyMap, OfAmericanKeys)
{
    const Keyboard us("us");
    EXPECT_EQ(us.press(keyQ), key(u"Q"_s, u"Q"_s));
    EXPECT_EQ(us.press(keyQ, shift), key(u"Q"_s, u"Q"_s));
    EXPECT_EQ(us.press(key1, shift), key(u"1"_s, u"!"_s));
    EXPECT_EQ(us.press(keyMinus), key(u"−"_s, u"−"_s));
    EXPECT_EQ(us.press(keyEqual, shift), key(u"="_s, u"+"_s));
    EXPECT_EQ(us.press(keyTab, shift), key(u"Tab"_s, u"Tab"_s));
}

TEST(XkbKeyMap, OfCzechKeys)
{
    const Keyboard cz("cz");
    EXPECT_EQ(cz.press(key2), key(u"Ě"_s, u"Ě"_s));
    EXPECT_EQ(cz.press(key2, shift), key(u"Ě"_s, u"2"_s));
    EXPECT_EQ(cz.press(keyY), key(u"Z"_s, u"Z"_s));
    EXPECT_EQ(cz.press(keyEqual), key(u"´"_s, u"´"_s));
    EXPECT_EQ(cz.press(keyEqual, shift), key(u"´"_s, u"ˇ"_s));
    EXPECT_EQ(cz.press(keyGrave, shift), key(u";"_s, u"°"_s));
    EXPECT_EQ(cz.press(keyH, cz.altGr()), key(u"H"_s, u"`"_s));
    EXPECT_EQ(Keyboard("cz", "qwerty").press(keyY), key(u"Y"_s, u"Y"_s));
}

TEST(XkbKeyMap, OfGermanKeys)
{
    const Keyboard de("de");
    EXPECT_EQ(de.press(keySemicolon), key(u"Ö"_s, u"Ö"_s));
    EXPECT_EQ(de.press(keyMinus), key(u"ß"_s, u"ß"_s));
    EXPECT_EQ(de.press(keyGrave), key(u"^"_s, u"^"_s));
    EXPECT_EQ(de.press(keyEqual, shift), key(u"´"_s, u"`"_s));
    EXPECT_EQ(de.press(keyQ, de.altGr()), key(u"Q"_s, u"@"_s));
}

TEST(XkbKeyMap, OfRussianKeysNamesTheAmericanOnes)
{
    const Keyboard ru("ru");
    EXPECT_EQ(ru.press(keyA), key(u"Ф"_s, u"Ф"_s, u"A"_s));
    EXPECT_EQ(ru.press(keySemicolon, shift), key(u"Ж"_s, u"Ж"_s, u";"_s));
    EXPECT_EQ(ru.press(keyGrave), key(u"Ё"_s, u"Ё"_s, u"`"_s));
    EXPECT_EQ(ru.press(keyBracket), key(u"Х"_s, u"Х"_s, u"["_s));
    EXPECT_EQ(ru.press(key2, shift), key(u"2"_s, u"\""_s));
}

TEST(XkbKeyMap, FollowsTheGroupThatIsOn)
{
    const Keyboard both("us,ru");
    EXPECT_EQ(both.press(keyA, 0, 0), key(u"A"_s, u"A"_s));
    EXPECT_EQ(both.press(keyA, 0, 1), key(u"Ф"_s, u"Ф"_s, u"A"_s));
}

TEST(XkbKeyMap, TakesTheLatinLetterFromTheUsersOtherLayout)
{
    EXPECT_EQ(Keyboard("cz,ru").press(keyY, 0, 1), key(u"Н"_s, u"Н"_s, u"Z"_s));
    EXPECT_EQ(Keyboard("ru,us").press(keyY, 0, 0), key(u"Н"_s, u"Н"_s, u"Y"_s));
}

TEST(XkbKeyMap, EveryForeignLetterHasALatinName)
{
    const Keyboard ru("ru");
    int letters = 0;
    for (quint32 code = key1; code <= 61; ++code) {
        const auto found = ru.press(code);
        if (!found || found->plain.size() != 1 || found->plain.front().script() != QChar::Script_Cyrillic)
            continue;
        ++letters;
        EXPECT_FALSE(found->latin.isEmpty()) << code;
        EXPECT_TRUE(found->latin.isEmpty() || found->latin.front().unicode() < 0x80) << code;
    }
    EXPECT_EQ(letters, 33);
}

TEST(XkbKeyMap, OfTheNumberPadFollowsItsLock)
{
    const Keyboard us("us");
    EXPECT_EQ(us.press(keyPad7), key(u"Home"_s, u"Home"_s));
    EXPECT_EQ(us.press(keyPad7, us.numLock()), key(u"7"_s, u"7"_s));
    EXPECT_EQ(us.press(keyPadMinus, us.numLock()), key(u"−"_s, u"−"_s));
    EXPECT_EQ(us.press(keyPadSlash), key(u"/"_s, u"/"_s));
}

TEST(XkbKeyMap, IsNothingForModifiersAndLocks)
{
    const Keyboard us("us,cz", {}, "grp:alt_shift_toggle");
    EXPECT_EQ(us.press(keyShift), std::nullopt);
    EXPECT_EQ(us.press(keyAlt), std::nullopt);
    EXPECT_EQ(us.press(keyAlt, shift), std::nullopt);
    EXPECT_EQ(us.press(keyNumLock), std::nullopt);
    EXPECT_EQ(us.press(keyAltGr, 0, 1), std::nullopt);
}

TEST(XkbKeyMap, IsNothingForKeysThatAreNotThere)
{
    const Keyboard us("us");
    EXPECT_EQ(us.map().key(0, 0, 0), std::nullopt);
    EXPECT_EQ(us.map().key(100'000, XKB_KEY_a, 0), std::nullopt);
}

TEST(XkbKeyMap, HasNoNameForKeysOutsideTheNotation)
{
    EXPECT_EQ(Keyboard("us").press(keyMute), key({}, {}));
}

TEST(XkbKeyMap, PutsAGroupThatAKeyLacksBackIntoItsRange)
{
    XkbKeyMap map{
        .firstKey = 8,
        .keys = {{.groups = {{XKB_KEY_a, XKB_KEY_a}, {XKB_KEY_b, XKB_KEY_b}}}},
    };
    const auto plainInGroup = [&](quint32 group) {
        return map.key(8, XKB_KEY_a, group << 13U)->plain;
    };
    EXPECT_EQ(plainInGroup(2), u"A"_s);
    EXPECT_EQ(plainInGroup(3), u"B"_s);
    map.keys[0].outOfRange = XkbKeyMap::OutOfRange::Clamp;
    EXPECT_EQ(plainInGroup(2), u"B"_s);
    map.keys[0].outOfRange = XkbKeyMap::OutOfRange::Redirect;
    EXPECT_EQ(plainInGroup(3), u"A"_s);
    map.keys[0].redirectGroup = 1;
    EXPECT_EQ(plainInGroup(2), u"B"_s);
    map.keys[0].redirectGroup = 3;
    EXPECT_EQ(plainInGroup(2), u"A"_s);
}

} // namespace keyvora
