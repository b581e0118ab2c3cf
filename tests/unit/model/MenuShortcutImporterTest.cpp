// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/MenuShortcutImporter.h"

#include "contract/Waiting.h"
#include "unit/Settle.h"
#include "unit/model/Menus.h"
#include "unit/model/Program.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <limits>
#include <thread>

namespace keyvora {

namespace {

constexpr qint32 safari = 4711;

QList<Shortcut> collected(const MenuTree &tree)
{
    return MenuShortcutImporter::collect(tree, u"Safari"_s, AppLanguage::English);
}

QStringList titlesOf(const QList<Shortcut> &shortcuts)
{
    QStringList titles;
    for (const Shortcut &shortcut : shortcuts)
        titles.append(shortcut.title);
    return titles;
}

/// The keys that a menu item with this command is stored with.
QStringList keysOf(const QString &commandCharacter, std::optional<int> modifiers)
{
    const QList<Shortcut> shortcuts = collected(menuOf({menuItem(u"Item"_s, commandCharacter, modifiers)}));
    return shortcuts.isEmpty() ? QStringList() : shortcuts.constFirst().keys;
}

/// Each element is the only child of the one before.
MenuTree chain(int length)
{
    MenuTree tree;
    for (int index = 0; index < length; ++index)
        tree.elements.push_back(menuItem(QString::number(index), u"t"_s, 0, {index + 1}));
    tree.elements.back().children.clear();
    return tree;
}

/// An importer, and what it said last.
struct Importer : Program
{
    using Program::Program;

    void import(qint32 pid)
    {
        outcome.reset();
        whenDone = importer.importFromApplication(pid, u"Safari"_s);
        EXPECT_TRUE(becomesTrue([this] { return whenDone.isFinished(); }));
        if (whenDone.resultCount() > 0)
            outcome = whenDone.result();
    }

    [[nodiscard]] std::optional<MenuImportError> error() const
    {
        const auto *error = outcome ? std::get_if<MenuImportError>(&*outcome) : nullptr;
        return error != nullptr ? std::optional(*error) : std::nullopt;
    }

    [[nodiscard]] std::optional<QList<Shortcut>> shortcuts() const
    {
        const auto *shortcuts = outcome ? std::get_if<QList<Shortcut>>(&*outcome) : nullptr;
        return shortcuts != nullptr ? std::optional(*shortcuts) : std::nullopt;
    }

    MenuShortcutImporter importer{accessibility};
    QFuture<MenuImport> whenDone;
    std::optional<MenuImport> outcome;
};

} // namespace

TEST(MenuCollection, MakesACompleteShortcut)
{
    const MenuTree menu = menuOf({menuItem(u"New Tab"_s, u"t"_s)});
    EXPECT_EQ(MenuShortcutImporter::collect(menu, u"Safari"_s, AppLanguage::English),
              QList<Shortcut>{makeShortcut(u"menu-Safari-New Tab-⌘T"_s, u"New Tab"_s, {u"⌘"_s, u"T"_s},
                                           {u"Safari"_s}, u"Imported from Safari's menu."_s,
                                           Shortcut::Category::zaklady)});
    EXPECT_EQ(MenuShortcutImporter::collect(menu, u"Safari"_s, AppLanguage::Czech),
              QList<Shortcut>{makeShortcut(u"menu-Safari-New Tab-⌘T"_s, u"New Tab"_s, {u"⌘"_s, u"T"_s},
                                           {u"Safari"_s}, u"Importováno z menu aplikace Safari."_s,
                                           Shortcut::Category::zaklady)});
}

TEST(MenuCollection, TakesNamesAndTitlesAsTheyAre)
{
    const QList<Shortcut> shortcuts =
        MenuShortcutImporter::collect(menuOf({menuItem(u"  Zoom %1 %2…"_s, u"+"_s, MenuModifier::Control)}),
                                      u"100%1 App"_s, AppLanguage::English);
    ASSERT_EQ(shortcuts.size(), 1);
    EXPECT_EQ(shortcuts[0].title, u"  Zoom %1 %2…"_s);
    EXPECT_EQ(shortcuts[0].id, u"menu-100%1 App-  Zoom %1 %2…-⌃⌘+"_s);
    EXPECT_EQ(shortcuts[0].apps, QStringList{u"100%1 App"_s});
    EXPECT_EQ(shortcuts[0].detail, u"Imported from 100%1 App's menu."_s);
}

TEST(MenuCollection, ReadsTheModifierBits)
{
    EXPECT_EQ(keysOf(u"T"_s, 0), (QStringList{u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 1), (QStringList{u"⇧"_s, u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 2), (QStringList{u"⌥"_s, u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 4), (QStringList{u"⌃"_s, u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 7), (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 8), (QStringList{u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 12), (QStringList{u"⌃"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, 15), (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"T"_s}));
}

TEST(MenuCollection, IgnoresBitsThatMeanNothing)
{
    EXPECT_EQ(keysOf(u"T"_s, 16), (QStringList{u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, std::numeric_limits<int>::min()), (QStringList{u"⌘"_s, u"T"_s}));
    EXPECT_EQ(keysOf(u"T"_s, -1), (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"T"_s}));
}

TEST(MenuCollection, TakesAbsentModifiersForCommandAlone)
{
    EXPECT_EQ(keysOf(u"T"_s, std::nullopt), (QStringList{u"⌘"_s, u"T"_s}));
}

TEST(MenuCollection, PutsCharactersIntoUpperCase)
{
    for (const auto &[character, key] : QList<std::pair<QString, QString>>{{u"t"_s, u"T"_s},
                                                                           {u"T"_s, u"T"_s},
                                                                           {u"ř"_s, u"Ř"_s},
                                                                           {u"r\u030C"_s, u"R\u030C"_s},
                                                                           {u"ß"_s, u"SS"_s},
                                                                           {u"и"_s, u"И"_s},
                                                                           {u"\U00010428"_s, u"\U00010400"_s},
                                                                           {u"i"_s, u"I"_s},
                                                                           {u","_s, u","_s},
                                                                           {u"["_s, u"["_s},
                                                                           {u"4"_s, u"4"_s},
                                                                           {u"−"_s, u"−"_s},
                                                                           {u"→"_s, u"→"_s}})
        EXPECT_EQ(keysOf(character, 8), QStringList{key});
}

TEST(MenuCollection, KeepsTheWordsOfKeysInTheirForm)
{
    for (const QString &word : {u"F11"_s, u"Page Up"_s, u"Delete"_s, u"Space"_s, u"Esc"_s, u"xyz"_s})
        EXPECT_EQ(keysOf(word, 8), QStringList{word});
}

TEST(MenuCollection, SkipsWhatHasNoTitleOrNoCommand)
{
    EXPECT_EQ(titlesOf(collected(menuOf({
                  menuItem({}, u"a"_s),
                  menuItem(u"No command"_s, {}),
                  MenuElement(),
                  menuItem(u"Complete"_s, u"c"_s),
              }))),
              QStringList{u"Complete"_s});
}

TEST(MenuCollection, ReadsTheSubmenuOfAnItemThatIsSkipped)
{
    const MenuTree tree{.elements = {
                            menuItem({}, {}, {}, {1}),
                            menuItem(u"File"_s, {}, {}, {2, 3}),
                            menuItem(u"New"_s, u"n"_s),
                            menuItem({}, {}, {}, {4}),
                            menuItem(u"Open"_s, u"o"_s),
                        }};
    EXPECT_EQ(titlesOf(collected(tree)), (QStringList{u"New"_s, u"Open"_s}));
}

TEST(MenuCollection, PutsASubmenusItemsBeforeItsOwnEntryAndKeepsTheOrder)
{
    const MenuTree tree{.elements = {
                            menuItem(u"bar"_s, u"b"_s, 0, {4, 1}),
                            menuItem(u"second"_s, u"2"_s, 0, {3, 2}),
                            menuItem(u"second of second"_s, u"s"_s),
                            menuItem(u"first of second"_s, u"f"_s),
                            menuItem(u"first"_s, u"1"_s, 0, {5}),
                            menuItem(u"only of first"_s, u"o"_s),
                        }};
    EXPECT_EQ(titlesOf(collected(tree)), (QStringList{u"only of first"_s, u"first"_s, u"first of second"_s,
                                                      u"second of second"_s, u"second"_s, u"bar"_s}));
}

TEST(MenuCollection, KeepsRepetitions)
{
    const MenuElement item = menuItem(u"Item"_s, u"i"_s);
    const QList<Shortcut> shortcuts = collected(menuOf({item, item}));
    ASSERT_EQ(shortcuts.size(), 2);
    EXPECT_EQ(shortcuts[0], shortcuts[1]);
}

TEST(MenuCollection, FindsNothingInNothing)
{
    EXPECT_TRUE(collected({}).isEmpty());
    EXPECT_TRUE(collected(menuOf({})).isEmpty());
}

TEST(MenuCollection, GoesDeeperThanAnyStack)
{
    constexpr int depth = 200'000;
    const QList<Shortcut> shortcuts = collected(chain(depth));
    ASSERT_EQ(shortcuts.size(), depth);
    EXPECT_EQ(shortcuts.constFirst().title, QString::number(depth - 1));
    EXPECT_EQ(shortcuts.constLast().title, u"0"_s);
}

TEST(MenuCollection, SkipsIndicesThatLeadNowhere)
{
    MenuTree tree = menuOf({menuItem(u"Item"_s, u"i"_s)});
    tree.elements.front().children = {-1, std::numeric_limits<int>::min(), 1, 2,
                                      std::numeric_limits<int>::max()};
    EXPECT_EQ(titlesOf(collected(tree)), QStringList{u"Item"_s});
}

TEST(MenuCollection, CountsEachElementOnceHoweverItIsListed)
{
    MenuTree tree = menuOf({menuItem(u"First"_s, u"f"_s), menuItem(u"Second"_s, u"s"_s)});
    tree.elements.front().children = {2, 1, 2, 1};
    tree.elements[1].children = {2};
    EXPECT_EQ(titlesOf(collected(tree)), (QStringList{u"Second"_s, u"First"_s}));
}

TEST(MenuCollection, EndsOnTreesThatAreCircles)
{
    MenuTree itself = menuOf({menuItem(u"Item"_s, u"i"_s, 0, {1})});
    EXPECT_EQ(titlesOf(collected(itself)), QStringList{u"Item"_s});

    MenuTree circle = chain(3);
    circle.elements.back().children = {0, 1, 2};
    EXPECT_EQ(titlesOf(collected(circle)), (QStringList{u"2"_s, u"1"_s, u"0"_s}));
}

TEST(MenuCollection, LeavesOutWhatTheBarDoesNotLeadTo)
{
    MenuTree tree = menuOf({menuItem(u"Item"_s, u"i"_s)});
    tree.elements.push_back(menuItem(u"Stray"_s, u"s"_s));
    EXPECT_EQ(titlesOf(collected(tree)), QStringList{u"Item"_s});
}

TEST(MenuSignature, IsTheTitleInLowerCaseAndTheKeys)
{
    EXPECT_EQ(menuSignature(makeShortcut(u"id"_s, u"New Tab"_s, {u"⌘"_s, u"T"_s})), u"new tab⌘T"_s);
    EXPECT_EQ(menuSignature(makeShortcut(u"id"_s, u"PŘÍLOHA"_s, {u"F11"_s})), u"přílohaF11"_s);
    EXPECT_EQ(menuSignature(Shortcut()), QString());
}

TEST(MenuSignature, IgnoresTheCaseOfTheTitleButNotTheKeys)
{
    const Shortcut shortcut = makeShortcut(u"id"_s, u"New Tab"_s, {u"⌘"_s, u"T"_s});
    EXPECT_EQ(menuSignature(shortcut), menuSignature(makeShortcut(u"id"_s, u"new tab"_s, {u"⌘"_s, u"T"_s})));
    EXPECT_NE(menuSignature(shortcut), menuSignature(makeShortcut(u"id"_s, u"New Tab"_s, {u"⌘"_s, u"t"_s})));
    EXPECT_NE(menuSignature(shortcut),
              menuSignature(makeShortcut(u"id"_s, u"New Tab"_s, {u"⇧"_s, u"⌘"_s, u"T"_s})));
    EXPECT_NE(menuSignature(makeShortcut(u"id"_s, u"New Tab"_s, {u"⌘"_s, u"⇧"_s, u"T"_s})),
              menuSignature(makeShortcut(u"id"_s, u"New Tab"_s, {u"⇧"_s, u"⌘"_s, u"T"_s})));
}

TEST(MenuSignature, IgnoresEverythingElse)
{
    EXPECT_EQ(
        menuSignature(makeShortcut(u"a"_s, u"New Tab"_s, {u"T"_s}, {u"Safari"_s}, u"One"_s)),
        menuSignature(makeShortcut(u"b"_s, u"New Tab"_s, {u"T"_s}, {}, u"Two"_s, Shortcut::Category::text)));
}

TEST(MenuSignature, IgnoresHowLettersAreComposed)
{
    EXPECT_EQ(menuSignature(makeShortcut(u"id"_s, u"Zavřít"_s, {u"Ř"_s})),
              menuSignature(makeShortcut(u"id"_s, u"Zavr\u030Ci\u0301t"_s, {u"R\u030C"_s})));
}

TEST(MenuShortcutImporter, ReadsTheMenuOfTheApplication)
{
    Importer program;
    program.accessibility.setMenuBar(safari, menuOf({menuItem(u"New Tab"_s, u"t"_s)}));
    program.import(safari);
    EXPECT_EQ(program.shortcuts(),
              QList<Shortcut>{makeShortcut(u"menu-Safari-New Tab-⌘T"_s, u"New Tab"_s, {u"⌘"_s, u"T"_s},
                                           {u"Safari"_s}, u"Imported from Safari's menu."_s)});
    EXPECT_EQ(program.accessibility.menuBarsRead(), QList<qint32>{safari});
}

TEST(MenuShortcutImporter, TakesAMenuWithoutShortcutsForASuccess)
{
    Importer program;
    program.accessibility.setMenuBar(safari, menuOf({menuItem(u"New Tab"_s, {})}));
    program.import(safari);
    EXPECT_EQ(program.shortcuts(), QList<Shortcut>());
}

TEST(MenuShortcutImporter, SpeaksTheLanguageOfTheMomentInWhichTheMenuArrives)
{
    Importer program;
    program.accessibility.setMenuBar(safari, menuOf({menuItem(u"New Tab"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    const QFuture<MenuImport> import = program.importer.importFromApplication(safari, u"Safari"_s);
    EXPECT_TRUE(becomesTrue([&] { return !program.accessibility.menuBarsRead().isEmpty(); }));
    program.localization().setLanguage(AppLanguage::Czech);
    program.accessibility.answer();
    ASSERT_TRUE(becomesTrue([&] { return import.isFinished(); }));
    EXPECT_EQ(std::get<QList<Shortcut>>(import.result()).constFirst().detail,
              u"Importováno z menu aplikace Safari."_s);
}

TEST(MenuShortcutImporter, AsksForPermissionEachTimeThatItHasNone)
{
    Importer program;
    program.accessibility.setTrusted(false);
    QSignalSpy prompts(&program.accessibility, &Accessibility::trustRequested);
    program.import(safari);
    EXPECT_EQ(program.error(), MenuImportError::permission);
    EXPECT_EQ(prompts.size(), 1);
    program.import(safari);
    EXPECT_EQ(prompts.size(), 2);
    EXPECT_TRUE(program.accessibility.menuBarsRead().isEmpty());
}

TEST(MenuShortcutImporter, DoesNotReadItself)
{
    Importer program;
    QSignalSpy prompts(&program.accessibility, &Accessibility::trustRequested);
    program.import(static_cast<qint32>(QCoreApplication::applicationPid()));
    EXPECT_EQ(program.error(), MenuImportError::application);
    EXPECT_TRUE(program.accessibility.menuBarsRead().isEmpty());
    EXPECT_TRUE(prompts.isEmpty());
}

TEST(MenuShortcutImporter, NeedsPermissionBeforeAnythingElse)
{
    Importer program;
    program.accessibility.setTrusted(false);
    program.import(static_cast<qint32>(QCoreApplication::applicationPid()));
    EXPECT_EQ(program.error(), MenuImportError::permission);
}

TEST(MenuShortcutImporter, SaysThatThereIsNoMenu)
{
    Importer program;
    program.import(safari);
    EXPECT_EQ(program.error(), MenuImportError::menu);
}

TEST(MenuShortcutImporter, TakesAMissingAnswerAboutTrustForANo)
{
    Importer program;
    program.accessibility.setGivesAnswers(false);
    program.import(safari);
    EXPECT_EQ(program.error(), MenuImportError::permission);
}

TEST(MenuShortcutImporter, TakesAMissingAnswerOfTheApplicationForNoMenu)
{
    Importer program;
    const QFuture<MenuImport> import = program.importer.importFromApplication(safari, u"Safari"_s);
    program.accessibility.setGivesAnswers(false);
    ASSERT_TRUE(becomesTrue([&] { return import.isFinished(); }));
    EXPECT_EQ(std::get<MenuImportError>(import.result()), MenuImportError::menu);
}

TEST(MenuShortcutImporter, TakesAnswersFromOtherThreads)
{
    Importer program;
    program.accessibility.setMenuBar(safari, chain(1000));
    program.accessibility.setHoldsAnswers(true);
    const QFuture<MenuImport> import = program.importer.importFromApplication(safari, u"Safari"_s);
    EXPECT_TRUE(becomesTrue([&] { return !program.accessibility.menuBarsRead().isEmpty(); }));
    std::thread([&] { program.accessibility.answer(); }).join();
    ASSERT_TRUE(becomesTrue([&] { return import.isFinished(); }));
    EXPECT_EQ(std::get<QList<Shortcut>>(import.result()).size(), 1000);
}

TEST(MenuShortcutImporter, LeavesNobodyWaitingWhenItDies)
{
    Program program;
    program.accessibility.setHoldsAnswers(true);
    QFuture<MenuImport> import;
    {
        MenuShortcutImporter importer(program.accessibility);
        import = importer.importFromApplication(safari, u"Safari"_s);
        EXPECT_TRUE(becomesTrue([&] { return !program.accessibility.menuBarsRead().isEmpty(); }));
    }
    program.accessibility.answer();
    settle();
    EXPECT_TRUE(import.isFinished());
    EXPECT_EQ(import.resultCount(), 0);
}

} // namespace keyvora
