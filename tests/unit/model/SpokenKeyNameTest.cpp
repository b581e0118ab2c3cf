// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeyCapLabel.h"
#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace keyvora {

TEST(SpokenKeyName, NamesEachSignInBothLanguages)
{
    struct Row
    {
        QString token;
        QString czech;
        QString english;
    };
    const Row rows[] = {
        {u"⌘"_s, u"Command"_s, u"Command"_s},
        {u"⌥"_s, u"Option"_s, u"Option"_s},
        {u"⇧"_s, u"Shift"_s, u"Shift"_s},
        {u"⌃"_s, u"Control"_s, u"Control"_s},
        {u"Fn"_s, u"Fn"_s, u"Function"_s},
        {u"←"_s, u"šipka doleva"_s, u"Left Arrow"_s},
        {u"→"_s, u"šipka doprava"_s, u"Right Arrow"_s},
        {u"↑"_s, u"šipka nahoru"_s, u"Up Arrow"_s},
        {u"↓"_s, u"šipka dolů"_s, u"Down Arrow"_s},
        {u"−"_s, u"minus"_s, u"Minus"_s},
        {u"+"_s, u"plus"_s, u"Plus"_s},
        {u","_s, u"čárka"_s, u"Comma"_s},
        {u"."_s, u"tečka"_s, u"Period"_s},
        {u"/"_s, u"lomítko"_s, u"Slash"_s},
        {u"`"_s, u"obrácená čárka"_s, u"Backtick"_s},
        {u"Space"_s, u"Mezerník"_s, u"Space"_s},
    };
    Program program;
    for (const Row &row : rows) {
        program.localization().setLanguage(AppLanguage::Czech);
        EXPECT_EQ(spokenKeyName(row.token), row.czech) << row.token.toStdString();
        program.localization().setLanguage(AppLanguage::English);
        EXPECT_EQ(spokenKeyName(row.token), row.english) << row.token.toStdString();
    }
}

TEST(SpokenKeyName, IsTheTokenWhereThatIsAWordOrALetter)
{
    Program program;
    for (const AppLanguage language : allLanguages) {
        program.localization().setLanguage(language);
        for (const auto &token : {u"A"_s, u"4"_s, u"F11"_s, u"Tab"_s, u"Esc"_s, u"Return"_s, u"Delete"_s,
                                  u"Home"_s, u"Page Up"_s, u"fn"_s, QString()})
            EXPECT_EQ(spokenKeyName(token), token);
    }
}

TEST(SpokenKeyName, HasASoundForEveryKeyOfTheCatalog)
{
    const auto isSpoken = [](QChar character) {
        return character.isLetterOrNumber();
    };
    Program program;
    for (const AppLanguage language : allLanguages) {
        program.localization().setLanguage(language);
        for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
            for (const QString &token : seed.keys) {
                const QString name = spokenKeyName(token);
                EXPECT_TRUE(std::ranges::any_of(name, isSpoken)) << token.toStdString();
            }
        }
    }
}

} // namespace keyvora
