// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/MenuHitTest.h"

#include "contract/accessibility/StrangeApplication.h"
#include "unit/QtPrinters.h"

#include <QList>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// The application's menu hangs down from the corner of the screen.
constexpr QPoint firstEntry(10, 30);
constexpr QPoint secondEntry(10, 50);
constexpr QPoint thirdEntry(10, 70);

/// For an application that has very much to tell: what ends the questions is their number.
const AtspiAccessibility::Patience muchPatienceWithHits{
    .trust = patience.trust,
    .menuBar = patience.menuBar,
    .hitTest = {.silence = std::chrono::seconds(20), .total = std::chrono::seconds(20)},
};

/// The commands found under presses at these points, empty where there is none.
QStringList commandsAt(const QString &behaviour, const QList<QPoint> &points)
{
    const StrangeApplication application(behaviour);
    EXPECT_TRUE(application.isReady());
    AtspiAccessibility accessibility(patience);
    QStringList titles;
    for (const QPoint point : points)
        titles.append(waitFor(accessibility.menuItemTitleAt(application.pid(), point)));
    return titles;
}

/// What a single press on the first entry came to.
struct Press
{
    QString title;
    /// How often the application was asked what.
    QHash<QByteArray, int> asked;
};

Press pressOnFirstEntry(const QString &behaviour)
{
    StrangeApplication application(behaviour);
    EXPECT_TRUE(application.isReady());
    AtspiAccessibility accessibility(muchPatienceWithHits);
    const QString title = waitFor(accessibility.menuItemTitleAt(application.pid(), firstEntry));
    return {.title = title, .asked = application.end()};
}

} // namespace

TEST(MenuHitTest, FindsTheCommandUnderAPress)
{
    EXPECT_EQ(commandsAt(u"ordinary"_s, {firstEntry, secondEntry, thirdEntry}),
              (QStringList{u"New"_s, u"Save As..."_s, QString()}));
}

// The menu that is closed comes first, and the open one has nothing at the second point.
TEST(MenuHitTest, TakesNoCommandOfAClosedMenuThatStillAnswers)
{
    EXPECT_EQ(commandsAt(u"closed"_s, {firstEntry, secondEntry}), (QStringList{u"Undo"_s, QString()}));
    EXPECT_EQ(commandsAt(u"closed-and-hidden"_s, {firstEntry, secondEntry}),
              (QStringList{u"Undo"_s, QString()}));
}

TEST(MenuHitTest, TakesNoCommandThatIsElsewhere)
{
    EXPECT_EQ(commandsAt(u"elsewhere"_s, {firstEntry, secondEntry}), (QStringList{u"Undo"_s, QString()}));
}

TEST(MenuHitTest, TakesNoCommandThatClaimsTheWholeWorld)
{
    EXPECT_EQ(commandsAt(u"everywhere"_s, {firstEntry, secondEntry}), (QStringList{u"Undo"_s, QString()}));
}

TEST(MenuHitTest, TakesNoCommandOfAnotherConnection)
{
    EXPECT_EQ(commandsAt(u"of-another"_s, {firstEntry, secondEntry}), (QStringList{u"Undo"_s, QString()}));
}

TEST(MenuHitTest, FindsTheCommandOfASubmenuThatLiesOverItsMenu)
{
    EXPECT_EQ(commandsAt(u"submenu"_s, {firstEntry, secondEntry}),
              (QStringList{u"Deeper"_s, u"Save As..."_s}));
    EXPECT_EQ(commandsAt(u"submenu-of-qt"_s, {firstEntry, secondEntry}),
              (QStringList{u"Deeper"_s, u"Save As..."_s}));
}

TEST(MenuHitTest, FindsTheCommandOfTheMenuWhereItsSubmenuIsClosed)
{
    EXPECT_EQ(commandsAt(u"closed-submenu-of-qt"_s, {firstEntry}), QStringList{u"New"_s});
}

TEST(MenuHitTest, TakesNoTitleOfASubmenuForACommand)
{
    EXPECT_EQ(commandsAt(u"submenu"_s, {thirdEntry, secondEntry}), (QStringList{QString(), u"Save As..."_s}));
    EXPECT_EQ(commandsAt(u"submenu-of-qt"_s, {thirdEntry, secondEntry}),
              (QStringList{QString(), u"Save As..."_s}));
}

TEST(MenuHitTest, AsksEachMenuOfACycleOnce)
{
    constexpr int menus = 22; // the bar, its menu and twenty submenus
    constexpr int timesEach = 5;
    for (const QString &behaviour : {u"submenu-cycle"_s, u"submenu-cycle-of-qt"_s}) {
        const Press press = pressOnFirstEntry(behaviour);
        EXPECT_EQ(press.title, u"Deeper"_s);
        EXPECT_EQ(press.asked["GetAccessibleAtPoint"], menus);
        EXPECT_LE(press.asked["GetRole"], menus * timesEach);
    }
}

TEST(MenuHitTest, GoesDownTwelveLevelsAtMost)
{
    const Press press = pressOnFirstEntry(u"endless-submenus"_s);
    EXPECT_EQ(press.title, u"New"_s);
    EXPECT_EQ(press.asked["GetAccessibleAtPoint"], 12);
}

TEST(MenuHitTest, ReadsTheFirstOfAMillionEntries)
{
    const Press press = pressOnFirstEntry(u"million"_s);
    EXPECT_EQ(press.title, u"New"_s);
    EXPECT_EQ(press.asked["GetChildAtIndex"], AtspiApplication::maximumChildrenByIndex);
}

TEST(MenuHitTest, ReadsTheFirstEntriesThatALiarSends)
{
    const Press press = pressOnFirstEntry(u"liar"_s);
    EXPECT_EQ(press.title, u"New"_s);
    // Besides those entries, it asks for the window, the bar, the menu and what is at the point.
    EXPECT_EQ(press.asked["GetRole"], AtspiApplication::maximumChildren + 4);
}

TEST(MenuHitTest, AsksAThousandMenusOfACrowdedBar)
{
    const Press press = pressOnFirstEntry(u"crowded-bar"_s);
    EXPECT_EQ(press.title, u"New"_s);
    EXPECT_EQ(press.asked["GetAccessibleAtPoint"], 1001); // the bar, too
    // Five thousand objects of menus, beside the window, the bar and what is at the point.
    EXPECT_EQ(press.asked["GetRole"], 5003);
}

TEST(MenuHitTest, AsksAThousandMenusThatHangOnNoBar)
{
    const Press press = pressOnFirstEntry(u"loose-menus"_s);
    EXPECT_EQ(press.title, u"New"_s);
    // The bar is one of them; then the menu that hangs on it.
    EXPECT_EQ(press.asked["GetAccessibleAtPoint"], 1001);
}

TEST(MenuHitTest, FindsCommandsOfOthersBesideAnApplicationThatNeverAnswers)
{
    const StrangeApplication silent(u"silent"_s);
    const StrangeApplication other(u"ordinary"_s);
    ASSERT_TRUE(silent.isReady() && other.isReady());
    AtspiAccessibility accessibility(patience);
    // More than are asked at a time.
    QList<QFuture<QString>> presses;
    for (int i = 0; i < 6; ++i)
        presses.append(accessibility.menuItemTitleAt(silent.pid(), firstEntry));
    const QFuture<QString> next = accessibility.menuItemTitleAt(other.pid(), firstEntry);
    for (const QFuture<QString> &press : presses)
        EXPECT_EQ(waitFor(press), QString());
    EXPECT_EQ(waitFor(next), u"New"_s);
}

TEST(MenuHitTest, FindsTheCommandOfAnApplicationThatDidNotAnswerThePressBefore)
{
    EXPECT_EQ(commandsAt(u"silent-at-first"_s, {firstEntry, firstEntry}), (QStringList{QString(), u"New"_s}));
}

} // namespace keyvora
