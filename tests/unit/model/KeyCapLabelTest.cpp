// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeyCapLabel.h"

#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(KeyCapLabel, NamesTheSpaceBarInTheCurrentLanguage)
{
    Program program;
    EXPECT_EQ(keyCapLabel(u"Space"_s), u"Space"_s);
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(keyCapLabel(u"Space"_s), u"Mezerník"_s);
}

TEST(KeyCapLabel, LeavesEveryOtherTokenAsItIs)
{
    Program program;
    for (const AppLanguage language : allLanguages) {
        program.localization().setLanguage(language);
        for (const auto &token :
             {u"⌘"_s,      u"⌥"_s,      u"⌃"_s,     u"⇧"_s, u"Fn"_s,       u"Tab"_s, u"Esc"_s,
              u"Return"_s, u"Delete"_s, u"F11"_s,   u"←"_s, u"→"_s,        u"−"_s,   u"A"_s,
              u"4"_s,      u"space"_s,  u"SPACE"_s, u" "_s, u"Mezerník"_s, QString()})
            EXPECT_EQ(keyCapLabel(token), token);
    }
}

} // namespace keyvora
