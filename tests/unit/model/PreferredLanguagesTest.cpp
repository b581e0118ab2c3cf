// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PreferredLanguages.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList languagesIn(std::initializer_list<std::pair<QString, QString>> variables)
{
    QProcessEnvironment environment;
    for (const auto &[name, value] : variables)
        environment.insert(name, value);
    return preferredLanguages(environment);
}

} // namespace

TEST(PreferredLanguages, AreNoneWithoutALocale)
{
    EXPECT_EQ(languagesIn({}), QStringList());
    EXPECT_EQ(languagesIn({{u"LANG"_s, QString()}}), QStringList());
}

TEST(PreferredLanguages, AreWrittenAsLanguageAndRegion)
{
    EXPECT_EQ(languagesIn({{u"LANG"_s, u"cs_CZ.UTF-8"_s}}), QStringList{u"cs-CZ"_s});
    EXPECT_EQ(languagesIn({{u"LANG"_s, u"en_GB"_s}}), QStringList{u"en-GB"_s});
    EXPECT_EQ(languagesIn({{u"LANG"_s, u"cs"_s}}), QStringList{u"cs"_s});
}

TEST(PreferredLanguages, DropEncodingAndVariant)
{
    EXPECT_EQ(languagesIn({{u"LANG"_s, u"de_DE.ISO-8859-15@euro"_s}}), QStringList{u"de-DE"_s});
    EXPECT_EQ(languagesIn({{u"LANG"_s, u"sr_RS@latin"_s}}), QStringList{u"sr-RS"_s});
}

TEST(PreferredLanguages, AskTheVariablesByRank)
{
    EXPECT_EQ(
        languagesIn({{u"LC_ALL"_s, u"cs_CZ"_s}, {u"LC_MESSAGES"_s, u"de_DE"_s}, {u"LANG"_s, u"fr_FR"_s}}),
        QStringList{u"cs-CZ"_s});
    EXPECT_EQ(languagesIn({{u"LC_MESSAGES"_s, u"de_DE"_s}, {u"LANG"_s, u"fr_FR"_s}}),
              QStringList{u"de-DE"_s});
    EXPECT_EQ(languagesIn({{u"LC_CTYPE"_s, u"de_DE"_s}, {u"LANG"_s, u"fr_FR"_s}}), QStringList{u"fr-FR"_s});
}

TEST(PreferredLanguages, PassOverAnEmptyVariable)
{
    EXPECT_EQ(languagesIn({{u"LC_ALL"_s, QString()}, {u"LC_MESSAGES"_s, QString()}, {u"LANG"_s, u"cs_CZ"_s}}),
              QStringList{u"cs-CZ"_s});
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, QString()}, {u"LANG"_s, u"cs_CZ"_s}}), QStringList{u"cs-CZ"_s});
}

TEST(PreferredLanguages, BeginWithTheListOfLanguages)
{
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"sk:cs_CZ:en_US"_s}, {u"LANG"_s, u"de_DE.UTF-8"_s}}),
              (QStringList{u"sk"_s, u"cs-CZ"_s, u"en-US"_s, u"de-DE"_s}));
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"cs"_s}, {u"LC_ALL"_s, u"en_US.UTF-8"_s}}),
              (QStringList{u"cs"_s, u"en-US"_s}));
}

TEST(PreferredLanguages, PassOverEmptyEntriesOfTheList)
{
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u":cs_CZ::C:"_s}, {u"LANG"_s, u"de_DE"_s}}),
              (QStringList{u"cs-CZ"_s, u"de-DE"_s}));
}

TEST(PreferredLanguages, AreNoneInTheLocalesWithoutALanguage)
{
    for (const auto &locale : {u"C"_s, u"POSIX"_s, u"C.UTF-8"_s})
        EXPECT_EQ(languagesIn({{u"LANG"_s, locale}}), QStringList()) << locale.toStdString();
}

TEST(PreferredLanguages, IgnoreTheListInTheLocaleC)
{
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"cs_CZ"_s}, {u"LANG"_s, u"C"_s}}), QStringList());
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"cs_CZ"_s}, {u"LC_ALL"_s, u"C"_s}, {u"LANG"_s, u"cs_CZ"_s}}),
              QStringList());
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"cs_CZ"_s}}), QStringList());
}

TEST(PreferredLanguages, HeedTheListInALocaleThatOnlyNamesAnEncoding)
{
    EXPECT_EQ(languagesIn({{u"LANGUAGE"_s, u"cs_CZ"_s}, {u"LANG"_s, u"C.UTF-8"_s}}), QStringList(u"cs-CZ"_s));
}

} // namespace keyvora
