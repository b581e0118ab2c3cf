// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"

#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

const RunningApplication safari{u"Safari"_s, 4711};
const RunningApplication finder{u"Finder"_s, 815};

RunningApplication ourselves()
{
    return {u"Keyvora"_s, static_cast<qint32>(QCoreApplication::applicationPid())};
}

const QSet<QString> firstFavorites{u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s};

/// A program over a store that holds this alone.
Program::Start withStored(const QString &key, const QJsonValue &value)
{
    return {.stored = {{key, value}}};
}

} // namespace

TEST(AppModelStart, OverAnEmptyStoreHasTheFirstValues)
{
    Program program;
    const AppModel &model = program.model();
    EXPECT_EQ(model.search(), QString());
    EXPECT_EQ(model.selection(), SidebarSelection());
    EXPECT_TRUE(model.modifierFilters().isEmpty());
    EXPECT_TRUE(model.customShortcuts().isEmpty());
    EXPECT_TRUE(model.smartSuggestionsEnabled());
    EXPECT_FALSE(model.learningModeEnabled());
    EXPECT_FALSE(model.latestSuggestion().has_value());
    EXPECT_EQ(model.latestSuggestionReason(), QString());
    EXPECT_EQ(model.importMessage(), std::nullopt);
    EXPECT_FALSE(model.isImporting());
    EXPECT_FALSE(model.importProgress().has_value());
    EXPECT_EQ(model.practiceIndex(), 0);
    EXPECT_EQ(model.practiceScore(), 0);
    EXPECT_FALSE(model.practiceAnswered());
    EXPECT_FALSE(model.launchAtLogin());
    EXPECT_EQ(model.favorites(), firstFavorites);
    EXPECT_TRUE(model.usageCounts().isEmpty());
    EXPECT_TRUE(model.practiceStats().isEmpty());
}

TEST(AppModelStart, StoresNothing)
{
    Program program;
    EXPECT_FALSE(QFile::exists(program.storePath()));
}

TEST(AppModelStart, RestoresWhatIsStored)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"Vlastní"_s, {u"⌘"_s, u"−"_s});
    QJsonObject stored = storedCustom({own, own});
    stored[u"favorites"_s] = QJsonArray{u"redo"_s, u"undo"_s, u"redo"_s, u"no-such-id"_s};
    stored[u"usageCounts"_s] = QJsonObject{{u"copy"_s, 3}, {u"no-such-id"_s, 1}};
    stored[u"practiceStats"_s] = QJsonObject{{u"copy"_s, QJsonObject{{u"seen"_s, 4}, {u"wrong"_s, 1}}}};
    stored[u"smartSuggestions"_s] = false;
    stored[u"learningMode"_s] = true;
    Program program({.stored = stored});
    const AppModel &model = program.model();
    EXPECT_EQ(model.customShortcuts(), (QList<Shortcut>{own, own}));
    EXPECT_EQ(model.favorites(), (QSet<QString>{u"redo"_s, u"undo"_s, u"no-such-id"_s}));
    EXPECT_EQ(model.usageCounts(), (QHash<QString, qint64>{{u"copy"_s, 3}, {u"no-such-id"_s, 1}}));
    EXPECT_EQ(model.practiceStats(), (QHash<QString, PracticeStat>{{u"copy"_s, {4, 1}}}));
    EXPECT_FALSE(model.smartSuggestionsEnabled());
    EXPECT_TRUE(model.learningModeEnabled());
    EXPECT_EQ(program.stored(), stored);
}

TEST(AppModelStart, LeavesAStoredEmptyListOfFavoritesEmpty)
{
    Program program(withStored(u"favorites"_s, QJsonArray()));
    EXPECT_TRUE(program.model().favorites().isEmpty());
}

TEST(AppModelStart, TakesTheFirstFavoritesForAValueThatIsNoListOfTexts)
{
    for (const QJsonValue &value :
         {QJsonValue(7), QJsonValue(u"copy"_s), QJsonValue(QJsonArray{u"undo"_s, 7}),
          QJsonValue(QJsonObject()), QJsonValue()}) {
        Program program(withStored(u"favorites"_s, value));
        EXPECT_EQ(program.model().favorites(), firstFavorites);
    }
}

TEST(AppModelStart, TakesAStoredSwitchOfAnotherTypeForAbsent)
{
    for (const QJsonValue &value :
         {QJsonValue(0), QJsonValue(u"false"_s), QJsonValue(QJsonArray()), QJsonValue()}) {
        Program program(withStored(u"smartSuggestions"_s, value));
        EXPECT_TRUE(program.model().smartSuggestionsEnabled());
    }
    for (const QJsonValue &value :
         {QJsonValue(1), QJsonValue(u"true"_s), QJsonValue(QJsonArray()), QJsonValue()}) {
        Program program(withStored(u"learningMode"_s, value));
        EXPECT_FALSE(program.model().learningModeEnabled());
    }
}

TEST(AppModelStart, TakesUsageCountsOfAnotherTypeForNone)
{
    for (const QJsonValue &value : {QJsonValue(7), QJsonValue(QJsonArray{1}),
                                    QJsonValue(QJsonObject{{u"copy"_s, 1}, {u"paste"_s, u"2"_s}}),
                                    QJsonValue(QJsonObject{{u"copy"_s, 1.5}})}) {
        Program program(withStored(u"usageCounts"_s, value));
        EXPECT_TRUE(program.model().usageCounts().isEmpty());
    }
}

TEST(AppModelStart, DropsOwnShortcutsThatCannotBeReadButLeavesThemStored)
{
    const QJsonObject whole = toJson(makeShortcut(u"custom-1"_s, u"Own"_s));
    QJsonObject lacking = whole;
    lacking.remove(u"detail"_s);
    QJsonObject stored{{u"customShortcuts"_s, QJsonArray{whole, lacking}}};
    Program program({.stored = stored});
    EXPECT_TRUE(program.model().customShortcuts().isEmpty());
    EXPECT_EQ(program.stored(), stored);

    program.model().setLearningMode(true);
    stored[u"learningMode"_s] = true;
    EXPECT_EQ(program.stored(), stored);

    program.model().addCustom(u"New"_s, {u"⌘"_s}, Shortcut::Category::text, {}, {});
    EXPECT_EQ(program.stored()[u"customShortcuts"_s].toArray().size(), 1);
}

TEST(AppModelStart, DropsPracticeStatisticsThatCannotBeRead)
{
    Program program(withStored(u"practiceStats"_s, QJsonObject{{u"copy"_s, QJsonObject{{u"seen"_s, 1}}}}));
    EXPECT_TRUE(program.model().practiceStats().isEmpty());
}

TEST(AppModelStart, ReadsOneBadValueWithoutLosingTheOthers)
{
    Program program(
        {.stored = {{u"favorites"_s, 7}, {u"learningMode"_s, true}, {u"customShortcuts"_s, u"x"_s}}});
    EXPECT_EQ(program.model().favorites(), firstFavorites);
    EXPECT_TRUE(program.model().learningModeEnabled());
    EXPECT_TRUE(program.model().customShortcuts().isEmpty());
}

TEST(ActiveApplication, IsTheOneInFrontAtStart)
{
    Program program({.frontmost = safari});
    EXPECT_EQ(program.model().activeApp(), u"Safari"_s);
    EXPECT_EQ(program.model().activeAppPID(), 4711);
}

TEST(ActiveApplication, IsMacWhenNoneIsInFrontAtStart)
{
    Program program;
    EXPECT_EQ(program.model().activeApp(), u"Mac"_s);
    EXPECT_EQ(program.model().activeAppPID(), std::nullopt);
}

TEST(ActiveApplication, IsMacWithItsProcessWhenTheOneInFrontAtStartHasNoName)
{
    Program program({.frontmost = RunningApplication{QString(), 4711}});
    EXPECT_EQ(program.model().activeApp(), u"Mac"_s);
    EXPECT_EQ(program.model().activeAppPID(), 4711);
}

TEST(ActiveApplication, FollowsTheDesktop)
{
    Program program({.frontmost = safari});
    const QSignalSpy changes(&program.model(), &AppModel::activeAppChanged);
    program.workspace.activate(finder);
    EXPECT_EQ(program.model().activeApp(), u"Finder"_s);
    EXPECT_EQ(program.model().activeAppPID(), 815);
    EXPECT_EQ(changes.size(), 1);
}

TEST(ActiveApplication, IsNeverThisProgram)
{
    Program program({.frontmost = safari});
    const QSignalSpy changes(&program.model(), &AppModel::activeAppChanged);
    program.workspace.activate(ourselves());
    EXPECT_EQ(program.model().activeApp(), u"Safari"_s);
    EXPECT_EQ(program.model().activeAppPID(), 4711);
    EXPECT_TRUE(changes.isEmpty());
}

TEST(ActiveApplication, StaysWhenAnApplicationWithoutANameComesToTheFront)
{
    Program program({.frontmost = safari});
    const QSignalSpy changes(&program.model(), &AppModel::activeAppChanged);
    program.workspace.activate({QString(), 815});
    EXPECT_EQ(program.model().activeApp(), u"Safari"_s);
    EXPECT_EQ(program.model().activeAppPID(), 4711);
    EXPECT_TRUE(changes.isEmpty());
}

TEST(ActiveApplication, ChangesItsProcessUnderTheSameNameWithoutAnotherSignal)
{
    Program program({.frontmost = safari});
    const QSignalSpy changes(&program.model(), &AppModel::activeAppChanged);
    program.workspace.activate({u"Safari"_s, 4712});
    EXPECT_EQ(program.model().activeAppPID(), 4712);
    EXPECT_TRUE(changes.isEmpty());
}

TEST(ActiveApplication, MayHaveNoProcess)
{
    Program program({.frontmost = safari});
    program.workspace.activate({u"Remote"_s, std::nullopt});
    EXPECT_EQ(program.model().activeApp(), u"Remote"_s);
    EXPECT_EQ(program.model().activeAppPID(), std::nullopt);
}

TEST(ActiveApplication, IsConsistentWhenItIsTold)
{
    Program program({.frontmost = safari});
    AppModel &model = program.model();
    int told = 0;
    QObject::connect(&model, &AppModel::activeAppChanged, &model, [&] {
        ++told;
        EXPECT_EQ(model.activeApp(), u"Finder"_s);
        EXPECT_EQ(model.activeAppPID(), 815);
    });
    program.workspace.activate(finder);
    EXPECT_EQ(told, 1);
}

TEST(ActiveApplication, IsAskedForOnceAndThenAwaited)
{
    Program program({.frontmost = safari});
    const int reads = program.workspace.frontmostReads();
    program.workspace.activate(finder);
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(program.workspace.frontmostReads(), 1);
}

TEST(AllShortcuts, AreTheCatalogThenTheOwnOnes)
{
    const Shortcut first = makeShortcut(u"custom-1"_s, u"One"_s);
    const Shortcut second = makeShortcut(u"custom-2"_s, u"Two"_s);
    Program program({.stored = storedCustom({second, first})});
    EXPECT_EQ(program.model().allShortcuts(),
              ShortcutLibrary::all(AppLanguage::English) + QList<Shortcut>({second, first}));
}

TEST(AllShortcuts, FollowTheLanguage)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"One"_s);
    Program program({.stored = storedCustom({own})});
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(program.model().allShortcuts(),
              ShortcutLibrary::all(AppLanguage::Czech) + QList<Shortcut>{own});
}

TEST(AllShortcuts, ListAnOwnOneWithTheIdOfACatalogRowBesideIt)
{
    Program program(
        {.stored = storedCustom({makeShortcut(u"copy"_s, u"Mine"_s), makeShortcut(u"copy"_s, u"Mine"_s)})});
    EXPECT_EQ(idsOf(program.model().allShortcuts()).count(u"copy"_s), 3);
}

TEST(SmartObserver, IsMadeAndStartedWithTheModel)
{
    const Program program;
    EXPECT_EQ(program.menuUse.made, 1);
    EXPECT_EQ(program.menuUse.calls, QStringList{u"start"_s});
}

TEST(SmartObserver, IsNotStartedWhileSuggestionsAreOff)
{
    const Program program(withStored(u"smartSuggestions"_s, false));
    EXPECT_EQ(program.menuUse.made, 1);
    EXPECT_FALSE(program.menuUse.calls.contains(u"start"_s));
}

TEST(SmartObserver, FollowsTheSwitch)
{
    Program program;
    program.menuUse.calls.clear();
    program.model().setSmartSuggestions(false);
    EXPECT_EQ(program.menuUse.calls, QStringList{u"stop"_s});
    program.model().setSmartSuggestions(true);
    EXPECT_EQ(program.menuUse.calls, (QStringList{u"stop"_s, u"start"_s}));
}

TEST(SmartObserver, IsLeftAloneByLearningMode)
{
    Program program;
    program.menuUse.calls.clear();
    program.model().setLearningMode(true);
    EXPECT_TRUE(program.menuUse.calls.isEmpty());
}

TEST(SmartObserver, EndsWithTheModel)
{
    Program program;
    program.end();
    EXPECT_EQ(program.menuUse.destroyed, 1);
}

TEST(SmartObserver, MayStillReportWhenTheModelIsGone)
{
    Program program;
    program.end();
    program.menuUse.handler(u"Copy"_s);
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(SmartObserver, NeedNotExist)
{
    const QTemporaryDir folder;
    Defaults defaults(folder.filePath(u"defaults.json"_s));
    const Localization localization(defaults, {});
    FakeWorkspace workspace;
    FakeLoginItem loginItem;
    FakeAccessibility accessibility;
    AppModel model({.defaults = defaults,
                    .workspace = workspace,
                    .loginItem = loginItem,
                    .accessibility = accessibility,
                    .makeSmartObserver = {}});
    model.setSmartSuggestions(false);
    model.setSmartSuggestions(true);
    EXPECT_TRUE(model.smartSuggestionsEnabled());
}

TEST(SmartSuggestionsSwitch, IsStoredAndToldWhenItChanges)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::smartSuggestionsEnabledChanged);
    program.model().setSmartSuggestions(false);
    EXPECT_FALSE(program.model().smartSuggestionsEnabled());
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.stored(), (QJsonObject{{u"smartSuggestions"_s, false}}));
    program.restart();
    EXPECT_FALSE(program.model().smartSuggestionsEnabled());
}

TEST(SmartSuggestionsSwitch, IsStoredButNotToldWhenItStaysTheSame)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::smartSuggestionsEnabledChanged);
    program.model().setSmartSuggestions(true);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(program.stored(), (QJsonObject{{u"smartSuggestions"_s, true}}));
}

TEST(LearningModeSwitch, IsStoredAndToldWhenItChanges)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::learningModeEnabledChanged);
    program.model().setLearningMode(true);
    EXPECT_TRUE(program.model().learningModeEnabled());
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.stored(), (QJsonObject{{u"learningMode"_s, true}}));
    program.restart();
    EXPECT_TRUE(program.model().learningModeEnabled());
}

TEST(LearningModeSwitch, IsStoredButNotToldWhenItStaysTheSame)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::learningModeEnabledChanged);
    program.model().setLearningMode(false);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(program.stored(), (QJsonObject{{u"learningMode"_s, false}}));
}

TEST(LaunchAtLogin, BeginsWithWhatTheDesktopReports)
{
    Program program({.opensAtLogin = true});
    EXPECT_TRUE(program.model().launchAtLogin());
    EXPECT_TRUE(program.loginItem.requests().isEmpty());
}

TEST(LaunchAtLogin, IsRegisteredAndUnregistered)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::launchAtLoginChanged);
    EXPECT_EQ(program.model().setLaunchAtLogin(true), std::nullopt);
    EXPECT_TRUE(program.model().launchAtLogin());
    EXPECT_EQ(program.model().setLaunchAtLogin(false), std::nullopt);
    EXPECT_FALSE(program.model().launchAtLogin());
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(program.loginItem.requests(), (QList<bool>{true, false}));
}

TEST(LaunchAtLogin, StaysAndPassesTheErrorOnWhenTheDesktopRefuses)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::launchAtLoginChanged);
    const PlatformError refusal{u"Not permitted"_s};
    program.loginItem.setError(refusal);
    program.loginItem.setReported(true);
    EXPECT_EQ(program.model().setLaunchAtLogin(true), refusal);
    EXPECT_FALSE(program.model().launchAtLogin());
    EXPECT_TRUE(changes.isEmpty());
}

TEST(LaunchAtLogin, FollowsTheReportRatherThanTheRequest)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::launchAtLoginChanged);
    program.loginItem.setObeys(false);
    EXPECT_EQ(program.model().setLaunchAtLogin(true), std::nullopt);
    EXPECT_FALSE(program.model().launchAtLogin());
    EXPECT_TRUE(changes.isEmpty());
}

TEST(LaunchAtLogin, IsToldOnlyWhenItChanges)
{
    Program program({.opensAtLogin = true});
    const QSignalSpy changes(&program.model(), &AppModel::launchAtLoginChanged);
    EXPECT_EQ(program.model().setLaunchAtLogin(true), std::nullopt);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(program.loginItem.requests(), QList<bool>{true});
}

TEST(LaunchAtLogin, IsNotStoredByTheProgram)
{
    Program program;
    EXPECT_EQ(program.model().setLaunchAtLogin(true), std::nullopt);
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(AppModel, WritesNothingWhenItEnds)
{
    Program program;
    program.model().setLearningMode(true);
    ASSERT_TRUE(QFile::remove(program.storePath()));
    program.end();
    EXPECT_FALSE(QFile::exists(program.storePath()));
}

} // namespace keyvora
