// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/VisualKeyboard.h"

#include "model/ShortcutListModel.h"
#include "unit/model/Program.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

QStringList matchesOf(const VisualKeyboard &keyboard)
{
    QStringList ids;
    for (int row = 0; row < keyboard.matches()->rowCount(); ++row)
        ids.append(keyboard.matches()
                       ->data(keyboard.matches()->index(row), ShortcutListModel::ShortcutIdRole)
                       .toString());
    return ids;
}

QString firstTitleOf(const VisualKeyboard &keyboard)
{
    const ShortcutListModel &matches = *keyboard.matches();
    return matches.data(matches.index(0), ShortcutListModel::TitleRole).toString();
}

/// Programs that show the keyboard.
void showKeyboard(Program &program)
{
    program.model().setSelection({.kind = SidebarSelection::Kind::keyboard});
}

} // namespace

TEST(VisualKeyboard, HasFourRows)
{
    QList<qsizetype> counts;
    for (const QVariant &row : VisualKeyboard::rows())
        counts.append(row.toStringList().size());
    EXPECT_EQ(counts, (QList<qsizetype>{13, 13, 12, 11}));
    EXPECT_EQ(VisualKeyboard::rows().constFirst().toStringList().at(11), u"\u2212"_s);
    EXPECT_EQ(VisualKeyboard::rows().constLast().toStringList(),
              (QStringList{u"Fn"_s, u"⌃"_s, u"⌥"_s, u"⌘"_s, u"Space"_s, u"⌘"_s, u"⌥"_s, u"←"_s, u"↑"_s,
                           u"↓"_s, u"→"_s}));
}

TEST(VisualKeyboard, MarksNoKeyWithoutAModifier)
{
    Program program;
    showKeyboard(program);
    const VisualKeyboard keyboard(program.model());
    EXPECT_TRUE(keyboard.availableKeys().isEmpty());
    program.model().setSearch(u"copy"_s);
    EXPECT_TRUE(keyboard.availableKeys().isEmpty());
}

TEST(VisualKeyboard, MarksTheKeysOfWhatPasses)
{
    Program program;
    showKeyboard(program);
    const VisualKeyboard keyboard(program.model());
    const QSignalSpy changes(&keyboard, &VisualKeyboard::availableKeysChanged);
    program.model().toggleModifier(ModifierFilter::command);
    EXPECT_TRUE(keyboard.availableKeys().contains(u","_s));
    EXPECT_TRUE(keyboard.availableKeys().contains(u"⌘"_s));
    EXPECT_FALSE(keyboard.availableKeys().contains(u"="_s));
    program.model().toggleModifier(ModifierFilter::shift);
    EXPECT_TRUE(keyboard.availableKeys().contains(u"Z"_s));
    EXPECT_FALSE(keyboard.availableKeys().contains(u","_s));
    program.model().setSearch(u"redo"_s);
    QStringList available = keyboard.availableKeys();
    available.sort();
    EXPECT_EQ(available, (QStringList{u"Z"_s, u"⇧"_s, u"⌘"_s}));
    EXPECT_EQ(changes.size(), 3);
    program.model().clearModifiers();
    EXPECT_TRUE(keyboard.availableKeys().isEmpty());
}

TEST(VisualKeyboard, ListsTheShortcutsOfTheSelectedKey)
{
    Program program;
    showKeyboard(program);
    VisualKeyboard keyboard(program.model());
    EXPECT_TRUE(matchesOf(keyboard).isEmpty());
    keyboard.select(u"Z"_s);
    EXPECT_EQ(keyboard.selectedKey(), u"Z"_s);
    EXPECT_EQ(matchesOf(keyboard).first(2), (QStringList{u"undo"_s, u"redo"_s}));
    program.model().toggleModifier(ModifierFilter::shift);
    EXPECT_EQ(matchesOf(keyboard).constFirst(), u"redo"_s);
    program.model().setSearch(u"nothing of the kind"_s);
    EXPECT_TRUE(matchesOf(keyboard).isEmpty());
    EXPECT_EQ(keyboard.matchCount(), 0);
}

TEST(VisualKeyboard, ListsTwelveOfThirty)
{
    QList<Shortcut> own;
    for (int number = 0; number < 30; ++number)
        own.append(makeShortcut(u"custom-%1"_s.arg(number), {}, {u"⌘"_s, u"="_s}));
    Program program({.stored = storedCustom(own)});
    showKeyboard(program);
    VisualKeyboard keyboard(program.model());
    keyboard.select(u"="_s);
    EXPECT_EQ(keyboard.matchCount(), 30);
    EXPECT_EQ(matchesOf(keyboard).size(), 12);
    EXPECT_EQ(matchesOf(keyboard).constLast(), u"custom-11"_s);
}

TEST(VisualKeyboard, FollowsTheProgram)
{
    QList<Shortcut> own{makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"="_s})};
    Program program({.stored = storedCustom(own)});
    showKeyboard(program);
    VisualKeyboard keyboard(program.model());
    program.model().toggleModifier(ModifierFilter::command);
    keyboard.select(u"="_s);
    EXPECT_TRUE(keyboard.availableKeys().contains(u"="_s));
    EXPECT_EQ(matchesOf(keyboard), QStringList{u"custom-1"_s});
    program.model().deleteCustom(own.constFirst());
    EXPECT_FALSE(keyboard.availableKeys().contains(u"="_s));
    EXPECT_TRUE(matchesOf(keyboard).isEmpty());

    keyboard.select(u"C"_s);
    EXPECT_EQ(firstTitleOf(keyboard), u"Copy"_s);
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(firstTitleOf(keyboard), u"Kopírovat"_s);
    program.localization().setLanguage(AppLanguage::English);
}

TEST(VisualKeyboard, FollowsOnlyWhileItIsShown)
{
    Program program;
    const VisualKeyboard keyboard(program.model());
    const QSignalSpy changes(&keyboard, &VisualKeyboard::availableKeysChanged);
    program.model().toggleModifier(ModifierFilter::command);
    EXPECT_TRUE(changes.isEmpty());
    showKeyboard(program);
    EXPECT_TRUE(keyboard.availableKeys().contains(u","_s));
}

TEST(VisualKeyboard, LeadsToTheLibrary)
{
    Program program;
    showKeyboard(program);
    VisualKeyboard keyboard(program.model());
    keyboard.openLibrary();
    EXPECT_EQ(program.model().selection(), SidebarSelection{});
}

} // namespace keyvora
