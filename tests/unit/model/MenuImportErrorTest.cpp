// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/MenuImportError.h"

#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(MenuImportError, HasItsCasesInOrder)
{
    EXPECT_EQ(static_cast<int>(MenuImportError::permission), 0);
    EXPECT_EQ(static_cast<int>(MenuImportError::application), 1);
    EXPECT_EQ(static_cast<int>(MenuImportError::menu), 2);
}

TEST(MenuImportError, IsToldInEnglish)
{
    const Program program;
    EXPECT_EQ(errorDescription(MenuImportError::permission),
              u"To import, allow Keyvora Accessibility access in System Settings."_s);
    EXPECT_EQ(errorDescription(MenuImportError::application),
              u"Couldn't read the active app. Switch to it and try importing again."_s);
    EXPECT_EQ(errorDescription(MenuImportError::menu),
              u"The active app's menu is unavailable or contains no shortcuts."_s);
}

TEST(MenuImportError, IsToldInCzech)
{
    const Program program({.languages = {u"cs-CZ"_s}});
    EXPECT_EQ(errorDescription(MenuImportError::permission),
              u"Pro import povolte Keyvora Zpřístupnění v Nastavení systému."_s);
    EXPECT_EQ(errorDescription(MenuImportError::application),
              u"Aktivní aplikaci se nepodařilo načíst. Přepněte do ní a zkuste import znovu."_s);
    EXPECT_EQ(errorDescription(MenuImportError::menu),
              u"Menu aktivní aplikace není dostupné nebo neobsahuje zkratky."_s);
}

TEST(MenuImportError, IsToldInTheLanguageOfTheMoment)
{
    Program program;
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(errorDescription(MenuImportError::menu),
              u"Menu aktivní aplikace není dostupné nebo neobsahuje zkratky."_s);
}

} // namespace keyvora
