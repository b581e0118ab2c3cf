// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/FirstAidModel.h"

#include "model/ShortcutListModel.h"
#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

const ShortcutListModel &shortcutsOf(const FirstAidModel &groups, int row)
{
    return *groups.data(groups.index(row), FirstAidModel::ShortcutsRole).value<ShortcutListModel *>();
}

QString titleOf(const FirstAidModel &groups, int row)
{
    return groups.data(groups.index(row), FirstAidModel::TitleRole).toString();
}

QStringList column(const ShortcutListModel &shortcuts, int role)
{
    QStringList values;
    for (int row = 0; row < shortcuts.rowCount(); ++row)
        values.append(shortcuts.data(shortcuts.index(row), role).toString());
    return values;
}

} // namespace

TEST(FirstAidModel, ListsTheSituationsWithTheirShortcuts)
{
    Program program;
    const FirstAidModel groups(program.model());
    const QList<QStringList> expected{
        {u"App is not responding"_s, u"force-quit"_s},
        {u"I accidentally changed something"_s, u"undo"_s, u"redo"_s},
        {u"I can't find a file or app"_s, u"spotlight"_s, u"find"_s},
        {u"I need to capture my screen"_s, u"shot-area"_s, u"shot-tools"_s},
        {u"I want to get back to work fast"_s, u"switch-app"_s, u"mission-control"_s, u"app-windows"_s},
    };
    ASSERT_EQ(groups.rowCount(), expected.size());
    for (int row = 0; row < groups.rowCount(); ++row) {
        EXPECT_EQ(QStringList{titleOf(groups, row)} +
                      column(shortcutsOf(groups, row), ShortcutListModel::ShortcutIdRole),
                  expected.at(row));
    }
}

TEST(FirstAidModel, FollowsTheLanguage)
{
    Program program;
    const FirstAidModel groups(program.model());
    EXPECT_EQ(column(shortcutsOf(groups, 1), ShortcutListModel::TitleRole),
              (QStringList{u"Undo"_s, u"Redo"_s}));
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(titleOf(groups, 0), u"Aplikace nereaguje"_s);
    EXPECT_EQ(titleOf(groups, 4), u"Chci se rychle vrátit k práci"_s);
    EXPECT_EQ(column(shortcutsOf(groups, 1), ShortcutListModel::TitleRole),
              (QStringList{u"Vrátit zpět"_s, u"Provést znovu"_s}));
}

TEST(FirstAidModel, KnowsTheFavourites)
{
    Program program;
    const FirstAidModel groups(program.model());
    EXPECT_EQ(column(shortcutsOf(groups, 2), ShortcutListModel::IsFavoriteRole),
              (QStringList{u"true"_s, u"false"_s}));
    program.model().toggleFavorite(u"find"_s);
    EXPECT_EQ(column(shortcutsOf(groups, 2), ShortcutListModel::IsFavoriteRole),
              (QStringList{u"true"_s, u"true"_s}));
}

} // namespace keyvora
