// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/CustomShortcutDraft.h"

#include "unit/model/Program.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

KeyPress press(const QString &key, bool command = true)
{
    return {.command = command, .plain = key, .typed = key};
}

} // namespace

TEST(CustomShortcutDraft, IsEmptyAtFirst)
{
    Program program;
    const CustomShortcutDraft draft(program.model());
    EXPECT_EQ(draft.title(), QString());
    EXPECT_EQ(draft.keys(), QStringList());
    EXPECT_EQ(draft.category(), 0);
    EXPECT_EQ(draft.conflictTitle(), QString());
    EXPECT_FALSE(draft.canSave());
}

TEST(CustomShortcutDraft, NeedsATitleAndKeys)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    const QSignalSpy changes(&draft, &CustomShortcutDraft::canSaveChanged);
    draft.setTitle(u"Word Wrap"_s);
    EXPECT_FALSE(draft.canSave());
    draft.setKeysText(u" + → "_s);
    EXPECT_FALSE(draft.canSave());
    EXPECT_FALSE(draft.save());
    draft.setKeysText(u"⌃ + ⇧ + W"_s);
    EXPECT_TRUE(draft.canSave());
    draft.setTitle(u" \t "_s);
    EXPECT_FALSE(draft.canSave());
    EXPECT_EQ(changes.size(), 2);
    EXPECT_TRUE(program.model().customShortcuts().isEmpty());
}

TEST(CustomShortcutDraft, SavesWhatWasWritten)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setTitle(u"  Word Wrap "_s);
    draft.setKeysText(u"⌘+K → ⌃+W"_s);
    draft.setCategory(1);
    draft.setApp(u" Mousepad "_s);
    draft.setDetail(u" Wraps long lines. "_s);
    ASSERT_TRUE(draft.save());
    const Shortcut saved = program.model().customShortcuts().constFirst();
    EXPECT_EQ(saved.title, u"Word Wrap"_s);
    EXPECT_EQ(saved.keys, (QStringList{u"⌘"_s, u"K"_s, u"→"_s, u"⌃"_s, u"W"_s}));
    EXPECT_EQ(saved.category, Shortcut::Category::text);
    EXPECT_EQ(saved.apps, QStringList{u"Mousepad"_s});
    EXPECT_EQ(saved.detail, u"Wraps long lines."_s);
}

TEST(CustomShortcutDraft, DoesNotWarnOfWhatItSaves)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setTitle(u"Word Wrap"_s);
    draft.setKeysText(u"⌃+F9"_s);
    const QSignalSpy changes(&draft, &CustomShortcutDraft::conflictTitleChanged);
    ASSERT_TRUE(draft.save());
    EXPECT_EQ(draft.conflictTitle(), QString());
    EXPECT_TRUE(changes.isEmpty());
}

TEST(CustomShortcutDraft, SavesWithoutApplicationAndDescription)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setTitle(u"Word Wrap"_s);
    draft.setKeysText(u"F9"_s);
    draft.setDetail(u"  "_s);
    ASSERT_TRUE(draft.save());
    EXPECT_EQ(program.model().customShortcuts().constFirst().apps, QStringList());
    EXPECT_EQ(program.model().customShortcuts().constFirst().detail, u"Custom keyboard shortcut."_s);
}

TEST(CustomShortcutDraft, WarnsOfAConflictWithoutStandingInTheWay)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    const QSignalSpy changes(&draft, &CustomShortcutDraft::conflictTitleChanged);
    draft.setTitle(u"Mine"_s);
    draft.setKeysText(u"⌘"_s);
    EXPECT_EQ(draft.conflictTitle(), QString());
    draft.setKeysText(u"⌘+C"_s);
    EXPECT_EQ(draft.conflictTitle(), u"Copy"_s);
    EXPECT_TRUE(draft.canSave());
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(draft.conflictTitle(), u"Kopírovat"_s);
    draft.setKeysText({});
    EXPECT_EQ(draft.conflictTitle(), QString());
    EXPECT_EQ(changes.size(), 3);
}

TEST(CustomShortcutDraft, WarnsWithinTheApplicationAlone)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setKeysText(u"⇧+⌘+G"_s);
    EXPECT_NE(draft.conflictTitle(), QString());
    draft.setApp(u"Safari"_s);
    EXPECT_EQ(draft.conflictTitle(), QString());
    draft.setApp(u" Finder "_s);
    EXPECT_NE(draft.conflictTitle(), QString());
}

TEST(CustomShortcutDraft, WarnsOfWhatIsImportedMeanwhile)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setKeysText(u"⌘+⌥+9"_s);
    EXPECT_EQ(draft.conflictTitle(), QString());
    program.model().addCustom(u"Nine"_s, {u"⌥"_s, u"⌘"_s, u"9"_s}, Shortcut::Category::text, {}, {});
    EXPECT_EQ(draft.conflictTitle(), u"Nine"_s);
}

TEST(CustomShortcutDraft, WritesThePressedKeys)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setKeysText(u"something else"_s);
    draft.takeKeys({.control = true, .shift = true, .plain = u"W"_s, .typed = u"W"_s});
    EXPECT_EQ(draft.keysText(), u"⌃ + ⇧ + W"_s);
    EXPECT_EQ(draft.keys(), (QStringList{u"⌃"_s, u"⇧"_s, u"W"_s}));
}

TEST(CustomShortcutDraft, WritesPressedKeysAsTheNextStepAfterAnArrow)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.takeKeys(press(u"K"_s));
    draft.setKeysText(draft.keysText() + u" →"_s);
    draft.takeKeys(press(u"C"_s));
    EXPECT_EQ(draft.keysText(), u"⌘ + K → ⌘ + C"_s);
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"K"_s, u"→"_s, u"⌘"_s, u"C"_s}));
    draft.takeKeys(press(u"X"_s));
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"X"_s}));
}

TEST(CustomShortcutDraft, TakesPressedKeysThatCannotBeWritten)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.takeKeys(press(u"+"_s));
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"+"_s}));
    draft.takeKeys(press(u"→"_s));
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"→"_s}));
    draft.takeKeys(press(u"→"_s));
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"→"_s}));
    // The same text again is no change of it.
    draft.setKeysText(draft.keysText());
    EXPECT_EQ(draft.keys(), (QStringList{u"⌘"_s, u"→"_s}));
}

TEST(CustomShortcutDraft, BeginsAnewWithTheCategoryOfTheLibrary)
{
    Program program;
    program.model().setSelection(
        {.kind = SidebarSelection::Kind::category, .category = Shortcut::Category::snimky});
    CustomShortcutDraft draft(program.model());
    draft.setTitle(u"A"_s);
    draft.setKeysText(u"⌘+C"_s);
    draft.setApp(u"B"_s);
    draft.setDetail(u"C"_s);
    draft.begin();
    EXPECT_EQ(draft.title() + draft.keysText() + draft.app() + draft.detail() + draft.conflictTitle(),
              QString());
    EXPECT_EQ(draft.category(), static_cast<int>(Shortcut::Category::snimky));
    EXPECT_FALSE(draft.canSave());
    program.model().setSelection({.kind = SidebarSelection::Kind::favorites});
    draft.begin();
    EXPECT_EQ(draft.category(), 0);
}

TEST(CustomShortcutDraft, IgnoresPositionsOfNoCategory)
{
    Program program;
    CustomShortcutDraft draft(program.model());
    draft.setCategory(3);
    draft.setCategory(-1);
    draft.setCategory(7);
    EXPECT_EQ(draft.category(), 3);
}

} // namespace keyvora
