// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/AppMenu.h"

#include "model/Defaults.h"
#include "model/Localization.h"
#include "unit/QtPrinters.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The language of the interface and the menu that takes it over.
struct Program
{
    explicit Program(const QString &language)
        : localization(defaults, {language})
    {
    }

    QTemporaryDir folder;
    Defaults defaults{folder.filePath(u"defaults.json"_s)};
    Localization localization;
    AppMenu menu;
};

} // namespace

TEST(AppMenu, SpeaksTheLanguageOfTheMomentInWhichItWasInstalled)
{
    Program czech(u"cs-CZ"_s);
    czech.menu.install();
    EXPECT_TRUE(czech.menu.isCzech());
}

TEST(AppMenu, KeepsItsLanguageWhenTheInterfaceChanges)
{
    Program program(u"en-US"_s);
    program.menu.install();
    QSignalSpy installed(&program.menu, &AppMenu::installed);
    program.localization.setLanguage(AppLanguage::Czech);
    EXPECT_FALSE(program.menu.isCzech());
    EXPECT_TRUE(installed.isEmpty());
}

TEST(AppMenu, TakesTheNewLanguageWhenItIsInstalledAgain)
{
    Program program(u"en-US"_s);
    program.menu.install();
    program.localization.setLanguage(AppLanguage::Czech);
    program.menu.install();
    EXPECT_TRUE(program.menu.isCzech());
    program.localization.setLanguage(AppLanguage::English);
    EXPECT_TRUE(program.menu.isCzech());
    program.menu.install();
    EXPECT_FALSE(program.menu.isCzech());
}

TEST(AppMenu, TellsThatItIsInstalledOnceItSpeaksTheNewLanguage)
{
    Program program(u"cs-CZ"_s);
    int told = 0;
    QObject::connect(&program.menu, &AppMenu::installed, &program.menu, [&] {
        ++told;
        EXPECT_TRUE(program.menu.isCzech());
    });
    program.menu.install();
    EXPECT_EQ(told, 1);
}

} // namespace keyvora
