// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "unit/model/ModelPrinters.h"
#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

using enum Shortcut::Category;

struct Names
{
    Shortcut::Category category;
    QString czech; ///< the stored name, too
    QString english;
};

const QList<Names> &allNames()
{
    static const QList<Names> names{
        {zaklady, u"Základy"_s, u"Basics"_s},
        {text, u"Text"_s, u"Text"_s},
        {okna, u"Okna a aplikace"_s, u"Windows & Apps"_s},
        {finder, u"Finder"_s, u"Finder"_s},
        {snimky, u"Snímky obrazovky"_s, u"Screenshots"_s},
        {prohlizec, u"Prohlížeč"_s, u"Browser"_s},
        {profi, u"Profesionální nástroje"_s, u"Pro Tools"_s},
    };
    return names;
}

} // namespace

TEST(Category, ComesInTheOrderOfDisplay)
{
    ASSERT_EQ(static_cast<qsizetype>(allCategories.size()), allNames().size());
    for (size_t i = 0; i < allCategories.size(); ++i)
        EXPECT_EQ(allCategories[i], allNames().at(static_cast<qsizetype>(i)).category);
}

TEST(Category, IsStoredUnderItsCzechNameInBothLanguages)
{
    Program program;
    for (const AppLanguage language : allLanguages) {
        program.localization().setLanguage(language);
        for (const Names &names : allNames()) {
            EXPECT_EQ(rawValue(names.category), names.czech);
            EXPECT_EQ(categoryFromRawValue(names.czech), names.category);
            // Files may come through tools that take letters and their accents apart.
            EXPECT_EQ(categoryFromRawValue(names.czech.normalized(QString::NormalizationForm_D)),
                      names.category);
        }
    }
}

TEST(Category, IsNotFoundByAnyOtherName)
{
    for (const auto &name : {u"Basics"_s, u"Windows & Apps"_s, u"Screenshots"_s, u"Browser"_s, u"Pro Tools"_s,
                             u"finder"_s, u"TEXT"_s, u" Text"_s, u"zaklady"_s, u"profi"_s, QString()})
        EXPECT_EQ(categoryFromRawValue(name), std::nullopt) << name.toStdString();
}

TEST(Category, IsShownInTheCurrentLanguage)
{
    Program program;
    program.localization().setLanguage(AppLanguage::Czech);
    for (const Names &names : allNames())
        EXPECT_EQ(displayName(names.category), names.czech);
    program.localization().setLanguage(AppLanguage::English);
    for (const Names &names : allNames())
        EXPECT_EQ(displayName(names.category), names.english);
}

TEST(HeaderText, IsTheCategoryForASystemWideShortcut)
{
    Program program;
    EXPECT_EQ(headerText(makeShortcut(u"a"_s)), u"Basics"_s);
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(headerText(makeShortcut(u"a"_s)), u"Základy"_s);
}

TEST(HeaderText, NamesTheOnlyApplication)
{
    const Program program;
    EXPECT_EQ(headerText(makeShortcut(u"a"_s, {}, {}, {u"Figma"_s}, {}, profi)), u"Pro Tools · Figma"_s);
}

TEST(HeaderText, LeavesOutTheApplicationThatTheCategoryIsNamedAfter)
{
    const Program program;
    EXPECT_EQ(headerText(makeShortcut(u"a"_s, {}, {}, {u"Finder"_s}, {}, finder)), u"Finder"_s);
}

TEST(HeaderText, LeavesOutSeveralApplications)
{
    const Program program;
    EXPECT_EQ(headerText(makeShortcut(u"a"_s, {}, {}, {u"Safari"_s, u"Arc"_s}, {}, prohlizec)), u"Browser"_s);
}

} // namespace keyvora
