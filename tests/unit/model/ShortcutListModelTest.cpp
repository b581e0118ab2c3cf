// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ShortcutListModel.h"

#include "unit/model/Program.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace keyvora {

namespace {

using Model = ShortcutListModel;

/// Shortcuts with one-letter ids.
QList<Shortcut> shortcuts(const QString &ids)
{
    QList<Shortcut> list;
    for (const QChar id : ids)
        list.append(makeShortcut(QString(id), u"Title of "_s + id));
    return list;
}

/// Shortcuts with the numbers from `first` to `last` as ids, `step` apart.
QList<Shortcut> numbered(int first, int last, int step = 1)
{
    QList<Shortcut> list;
    for (int i = first; i <= last; i += step)
        list.append(makeShortcut(QString::number(i), u"Title"_s));
    return list;
}

/// What a view that only listens to the signals would show.
class Follower
{
public:
    explicit Follower(const Model &model)
        : m_model(model)
    {
        QObject::connect(&model, &Model::rowsInserted, &m_context,
                         [this](const QModelIndex &, int first, int last) {
                             ++m_steps;
                             for (int row = first; row <= last; ++row)
                                 m_rows.insert(row, read(row));
                         });
        QObject::connect(&model, &Model::rowsRemoved, &m_context,
                         [this](const QModelIndex &, int first, int last) {
                             ++m_steps;
                             m_rows.remove(first, last - first + 1);
                         });
        QObject::connect(&model, &Model::rowsMoved, &m_context,
                         [this](const QModelIndex &, int first, int last, const QModelIndex &, int before) {
                             ++m_steps;
                             for (int i = 0; i <= last - first; ++i)
                                 m_rows.move(before > first ? first : first + i,
                                             before > first ? before - 1 : before + i);
                         });
        QObject::connect(&model, &Model::dataChanged, &m_context,
                         [this](const QModelIndex &first, const QModelIndex &last) {
                             for (int row = first.row(); row <= last.row(); ++row)
                                 m_rows[row] = read(row);
                         });
    }

    /// What it shows: a row's id, title, keys and detail.
    [[nodiscard]] const QList<QVariantList> &rows() const { return m_rows; }
    /// How many times rows came, went or moved.
    [[nodiscard]] int steps() const { return m_steps; }

private:
    [[nodiscard]] QVariantList read(int row) const
    {
        QVariantList values;
        for (const int role : {Model::ShortcutIdRole, Model::TitleRole, Model::KeysRole, Model::DetailRole})
            values.append(m_model.data(m_model.index(row), role));
        return values;
    }

    const Model &m_model;
    QObject m_context;
    QList<QVariantList> m_rows;
    int m_steps = 0;
};

/// A model with everything that watches it, so that no change goes unchecked.
struct WatchedModel
{
    Model model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};
    Follower follower{model};
    QSignalSpy inserted{&model, &Model::rowsInserted};
    QSignalSpy removed{&model, &Model::rowsRemoved};
    QSignalSpy moved{&model, &Model::rowsMoved};
    QSignalSpy changed{&model, &Model::dataChanged};
    QSignalSpy reset{&model, &Model::modelReset};

    /// Shows a list and forgets how it came.
    void begin(const QList<Shortcut> &list)
    {
        model.setShortcuts(list);
        for (QSignalSpy *spy : {&inserted, &removed, &moved, &changed, &reset})
            spy->clear();
    }

    [[nodiscard]] QString ids() const
    {
        QString ids;
        for (int row = 0; row < model.rowCount(); ++row)
            ids += model.data(model.index(row), Model::ShortcutIdRole).toString();
        return ids;
    }

    [[nodiscard]] QVariant value(int row, int role) const { return model.data(model.index(row), role); }
};

/// The rows of the first column of a signal's first and last row.
QPair<int, int> rangeOf(const QList<QVariant> &signalArguments)
{
    return {signalArguments.at(1).toInt(), signalArguments.at(2).toInt()};
}

void expectShows(const WatchedModel &watched, const QList<Shortcut> &list)
{
    ASSERT_EQ(watched.model.rowCount(), list.size());
    ASSERT_EQ(watched.follower.rows().size(), list.size());
    for (int row = 0; row < list.size(); ++row) {
        const Shortcut &expected = list.at(row);
        const QVariantList values{expected.id, expected.title, expected.keys, expected.detail};
        ASSERT_EQ(watched.follower.rows().at(row), values) << row;
        ASSERT_EQ(watched.value(row, Model::ShortcutIdRole), expected.id) << row;
        ASSERT_EQ(watched.value(row, Model::TitleRole), expected.title) << row;
        ASSERT_EQ(watched.value(row, Model::CategoryRole), static_cast<int>(expected.category)) << row;
    }
}

} // namespace

TEST(ShortcutListModel, IsEmptyAtFirst)
{
    const WatchedModel watched;
    EXPECT_EQ(watched.model.rowCount(), 0);
}

TEST(ShortcutListModel, ShowsTheFieldsOfAShortcut)
{
    Program program;
    WatchedModel watched;
    watched.model.setShortcuts({makeShortcut(u"copy"_s, u"Copy"_s, {u"⌘"_s, u"C"_s}, {u"Figma"_s},
                                             u"Copies it."_s, Shortcut::Category::profi)});
    EXPECT_EQ(watched.value(0, Model::ShortcutIdRole), u"copy"_s);
    EXPECT_EQ(watched.value(0, Model::TitleRole), u"Copy"_s);
    EXPECT_EQ(watched.value(0, Qt::DisplayRole), u"Copy"_s);
    EXPECT_EQ(watched.value(0, Model::KeysRole), (QStringList{u"⌘"_s, u"C"_s}));
    EXPECT_EQ(watched.value(0, Model::CategoryRole), 6);
    EXPECT_EQ(watched.value(0, Model::HeaderTextRole), u"Pro Tools · Figma"_s);
    EXPECT_EQ(watched.value(0, Model::DetailRole), u"Copies it."_s);
    EXPECT_EQ(watched.value(0, Model::IsFavoriteRole), false);
    EXPECT_FALSE(watched.value(0, Qt::DecorationRole).isValid());
}

TEST(ShortcutListModel, NamesItsRolesForViews)
{
    const QHash<int, QByteArray> expected{
        {Model::ShortcutIdRole, "shortcutId"},
        {Model::TitleRole, "title"},
        {Model::KeysRole, "keys"},
        {Model::CategoryRole, "category"},
        {Model::DetailRole, "detail"},
        {Model::HeaderTextRole, "headerText"},
        {Model::IsFavoriteRole, "isFavorite"},
    };
    EXPECT_EQ(Model().roleNames(), expected);
}

TEST(ShortcutListModel, MakesForeignTextsHarmlessToShow)
{
    Program program;
    WatchedModel watched;
    watched.model.setShortcuts(
        {makeShortcut(u"a"_s, u"Copy\n\u202Eevil"_s + QString(10'000, u'x'), {},
                      {u"App\u0007"_s + QString(10'000, u'y')}, u"a\tb"_s + QString(10'000, u'z'))});
    for (const int role : {Model::TitleRole, Model::DetailRole, Model::HeaderTextRole}) {
        const QString text = watched.value(0, role).toString();
        EXPECT_LE(text.size(), 400);
        EXPECT_TRUE(text.endsWith(u'…'));
        EXPECT_FALSE(text.contains(u'\n') || text.contains(u'\t') || text.contains(u'\u202E') ||
                     text.contains(QChar(7)));
    }
    EXPECT_TRUE(watched.value(0, Model::TitleRole).toString().startsWith("Copy evil"_L1));
}

TEST(ShortcutListModel, HasNothingUnderARow)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"ab"_s));
    EXPECT_EQ(watched.model.rowCount(watched.model.index(0)), 0);
}

TEST(ShortcutListModel, InsertsARunInOneStep)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"aez"_s));
    watched.model.setShortcuts(shortcuts(u"abcdez"_s));
    ASSERT_EQ(watched.inserted.size(), 1);
    EXPECT_EQ(rangeOf(watched.inserted.at(0)), qMakePair(1, 3));
    EXPECT_TRUE(watched.removed.isEmpty());
    EXPECT_TRUE(watched.moved.isEmpty());
    EXPECT_TRUE(watched.changed.isEmpty());
    expectShows(watched, shortcuts(u"abcdez"_s));
}

TEST(ShortcutListModel, RemovesARunInOneStep)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abcdez"_s));
    watched.model.setShortcuts(shortcuts(u"aez"_s));
    ASSERT_EQ(watched.removed.size(), 1);
    EXPECT_EQ(rangeOf(watched.removed.at(0)), qMakePair(1, 3));
    EXPECT_TRUE(watched.inserted.isEmpty());
    EXPECT_TRUE(watched.moved.isEmpty());
    EXPECT_TRUE(watched.changed.isEmpty());
}

TEST(ShortcutListModel, MovesARowThatClimbsInOneStep)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abcd"_s));
    watched.model.setShortcuts(shortcuts(u"dabc"_s));
    EXPECT_EQ(watched.moved.size(), 1);
    EXPECT_TRUE(watched.inserted.isEmpty());
    EXPECT_TRUE(watched.removed.isEmpty());
    EXPECT_EQ(watched.ids(), u"dabc"_s);
}

TEST(ShortcutListModel, MovesTheRowsOfAReversedList)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abcd"_s));
    watched.model.setShortcuts(shortcuts(u"dcba"_s));
    EXPECT_TRUE(watched.inserted.isEmpty());
    EXPECT_TRUE(watched.removed.isEmpty());
    expectShows(watched, shortcuts(u"dcba"_s));
}

TEST(ShortcutListModel, TellsNothingForAnEqualList)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abcab"_s));
    watched.model.setShortcuts(shortcuts(u"abcab"_s));
    for (const QSignalSpy *spy :
         {&watched.inserted, &watched.removed, &watched.moved, &watched.changed, &watched.reset})
        EXPECT_TRUE(spy->isEmpty());
}

TEST(ShortcutListModel, ChangesARowWhoseShortcutChanged)
{
    WatchedModel watched;
    QList<Shortcut> list = shortcuts(u"abcd"_s);
    watched.begin(list);
    list[1].title = u"Other"_s;
    list[2].keys = {u"⌘"_s};
    watched.model.setShortcuts(list);
    ASSERT_EQ(watched.changed.size(), 1);
    EXPECT_EQ(watched.changed.at(0).at(0).toModelIndex().row(), 1);
    EXPECT_EQ(watched.changed.at(0).at(1).toModelIndex().row(), 2);
    EXPECT_TRUE(watched.inserted.isEmpty());
    EXPECT_TRUE(watched.removed.isEmpty());
    expectShows(watched, list);
}

TEST(ShortcutListModel, KeepsTheRowsThatStay)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abcdefg"_s));
    QList<QPersistentModelIndex> rows;
    for (int row = 0; row < 7; ++row)
        rows.append(watched.model.index(row));
    watched.model.setShortcuts(shortcuts(u"xgbydf"_s));
    const QString ids = u"abcdefg"_s;
    for (int i = 0; i < 7; ++i) {
        const auto row = u"xgbydf"_s.indexOf(ids.at(i));
        EXPECT_EQ(rows.at(i).isValid() ? rows.at(i).row() : -1, row) << i;
    }
    EXPECT_TRUE(watched.reset.isEmpty());
}

TEST(ShortcutListModel, TellsRowsThatShareAnIdByTheirOrder)
{
    WatchedModel watched;
    const QList<Shortcut> both{makeShortcut(u"a"_s, u"First"_s), makeShortcut(u"b"_s, u"Between"_s),
                               makeShortcut(u"a"_s, u"Second"_s)};
    watched.begin(both);
    const QPersistentModelIndex first = watched.model.index(0);
    const QPersistentModelIndex second = watched.model.index(2);
    watched.model.setShortcuts({both.at(1), both.at(2)});
    expectShows(watched, {both.at(1), both.at(2)});
    EXPECT_TRUE(first.isValid());
    EXPECT_FALSE(second.isValid());
    watched.model.setShortcuts(both);
    expectShows(watched, both);
}

TEST(ShortcutListModel, FindsTheFirstRowOfAnId)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abca"_s));
    EXPECT_EQ(watched.model.rowOf(u"a"_s), 0);
    EXPECT_EQ(watched.model.rowOf(u"c"_s), 2);
    EXPECT_EQ(watched.model.rowOf(u"A"_s), -1);
    EXPECT_EQ(watched.model.rowOf(QString()), -1);
}

TEST(ShortcutListModel, TellsWhichRowsBecameFavoritesOrCeasedToBe)
{
    WatchedModel watched;
    watched.begin(shortcuts(u"abca"_s));
    watched.model.setFavorites({u"a"_s, u"not shown"_s});
    EXPECT_EQ(watched.changed.size(), 2);
    for (const auto &arguments : watched.changed)
        EXPECT_EQ(arguments.at(2).value<QList<int>>(), QList<int>{Model::IsFavoriteRole});
    EXPECT_EQ(watched.value(0, Model::IsFavoriteRole), true);
    EXPECT_EQ(watched.value(1, Model::IsFavoriteRole), false);
    EXPECT_EQ(watched.value(3, Model::IsFavoriteRole), true);
    watched.changed.clear();
    watched.model.setFavorites({u"a"_s});
    EXPECT_TRUE(watched.changed.isEmpty());
    watched.model.setFavorites({u"b"_s});
    EXPECT_EQ(watched.changed.size(), 3);
    EXPECT_EQ(watched.value(0, Model::IsFavoriteRole), false);
    EXPECT_EQ(watched.value(1, Model::IsFavoriteRole), true);
}

TEST(ShortcutListModel, TellsThatAllTextsFollowTheLanguage)
{
    WatchedModel watched;
    watched.model.languageChanged();
    EXPECT_TRUE(watched.changed.isEmpty());
    watched.begin(shortcuts(u"abc"_s));
    watched.model.languageChanged();
    ASSERT_EQ(watched.changed.size(), 1);
    EXPECT_EQ(watched.changed.at(0).at(0).toModelIndex().row(), 0);
    EXPECT_EQ(watched.changed.at(0).at(1).toModelIndex().row(), 2);
}

TEST(ShortcutListModel, EndsWithTheRightListAfterThousandsOfChanges)
{
    const QList<Shortcut> all = numbered(1, 3000);
    QList<Shortcut> reversed = all;
    std::ranges::reverse(reversed);
    QList<Shortcut> shuffled = all;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(2026)); // the same at each run
    QList<Shortcut> rotated = all;
    std::rotate(rotated.begin(), rotated.begin() + 1, rotated.end());

    WatchedModel watched;
    for (const QList<Shortcut> &list :
         {all, numbered(2, 3000, 2), numbered(1, 3000, 2), all, reversed, shuffled, all, rotated, all,
          numbered(1, 6000, 3), QList<Shortcut>(), all}) {
        const int before = watched.follower.steps();
        watched.model.setShortcuts(list);
        expectShows(watched, list);
        EXPECT_LT(watched.follower.steps() - before, 1000);
        if (HasFatalFailure())
            return;
    }
    EXPECT_TRUE(watched.reset.isEmpty());
}

TEST(ShortcutListModel, KeepsTheRowsAboveTheFirstManyChanges)
{
    QList<Shortcut> list = numbered(1, 3000);
    WatchedModel watched;
    watched.begin(list);
    const QPersistentModelIndex above = watched.model.index(19);
    list.removeIf(
        [](const Shortcut &shortcut) { return shortcut.id.toInt() > 20 && shortcut.id.toInt() % 2 == 1; });
    watched.model.setShortcuts(list);
    EXPECT_EQ(above.row(), 19);
    expectShows(watched, list);
}

TEST(ShortcutListModel, ShowsWhateverListItIsGiven)
{
    std::mt19937 random(20260101); // the same at each run
    const auto below = [&](int end) {
        return std::uniform_int_distribution(0, end - 1)(random);
    };
    WatchedModel watched;
    for (int round = 0; round < 1500; ++round) {
        const int size = below(10) == 0 ? below(300) : below(12);
        const int variety = 1 + below(size + 3);
        QList<Shortcut> list;
        for (int i = 0; i < size; ++i)
            list.append(
                makeShortcut(QString::number(below(variety)), u"Title "_s + QString::number(below(3))));
        watched.model.setShortcuts(list);
        expectShows(watched, list);
        if (testing::Test::HasFatalFailure()) {
            ADD_FAILURE() << "in round " << round;
            return;
        }
    }
    EXPECT_TRUE(watched.reset.isEmpty());
}

} // namespace keyvora
