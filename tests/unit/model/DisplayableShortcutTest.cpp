// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DisplayableShortcut.h"

#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(DisplayableShortcut, IsTheCatalogAsItStands)
{
    Program program;
    for (const Shortcut &shortcut : ShortcutLibrary::all(AppLanguage::Czech)) {
        EXPECT_EQ(displayableTitle(shortcut), shortcut.title);
        EXPECT_EQ(displayableHeader(shortcut), headerText(shortcut));
        EXPECT_EQ(displayableDetail(shortcut), shortcut.detail);
        EXPECT_EQ(displayableKeys(shortcut), shortcut.keys);
    }
}

TEST(DisplayableShortcut, IsInOneHarmlessLine)
{
    Program program;
    const Shortcut shortcut =
        makeShortcut(u"a"_s, u"A\n\u202eB"_s, {u"\u202ex"_s, u"a\u0000b"_s}, {u"C\tD"_s}, u"E\rF"_s);
    EXPECT_EQ(displayableTitle(shortcut), u"A B"_s);
    EXPECT_EQ(displayableHeader(shortcut), u"Basics · C D"_s);
    EXPECT_EQ(displayableDetail(shortcut), u"E F"_s);
    EXPECT_EQ(displayableKeys(shortcut), (QStringList{u"x"_s, u"a b"_s}));
}

TEST(DisplayableShortcut, IsBounded)
{
    const QString endless(10'000'000, u'x');
    const QStringList keys(400'000, u"⌘"_s);
    EXPECT_LE(displayableTitle(makeShortcut(u"a"_s, endless)).size(), 200);
    EXPECT_LE(displayableDetail(makeShortcut(u"a"_s, {}, {}, {}, endless)).size(), 400);
    EXPECT_LE(displayableKeys(makeShortcut(u"a"_s, {}, {endless})).constFirst().size(), 40);
    const QStringList shown = displayableKeys(makeShortcut(u"a"_s, {}, keys));
    EXPECT_EQ(shown.size(), 25);
    EXPECT_EQ(shown.constFirst(), u"⌘"_s);
    EXPECT_EQ(shown.constLast(), u"…"_s);
}

TEST(DisplayableShortcut, IsWhatScreensAreGiven)
{
    const Shortcut endless = makeShortcut(u"a"_s, QString(1000, u'x'), QStringList(1000, u"⌘"_s));
    Program program({.stored = storedCustom({endless})});
    const auto *model = program.model().filteredModel();
    const QModelIndex row = model->index(model->rowOf(u"a"_s), 0);
    EXPECT_EQ(row.data(ShortcutListModel::TitleRole).toString(), displayableTitle(endless));
    EXPECT_EQ(row.data(ShortcutListModel::KeysRole).toStringList(), displayableKeys(endless));
    program.model().setLearningMode(true);
    program.model().recordMouseAction(endless.title);
    EXPECT_EQ(program.model().suggestionTitle(), displayableTitle(endless));
    EXPECT_EQ(program.model().suggestionKeys(), displayableKeys(endless));
}

} // namespace keyvora
