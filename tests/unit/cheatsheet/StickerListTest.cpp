// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/StickerList.h"

#include "model/ShortcutLibrary.h"
#include "unit/QtPrinters.h"
#include "unit/cheatsheet/Sheets.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

QStringList idsIn(const QList<Shortcut> &shortcuts)
{
    QStringList ids;
    for (const Shortcut &shortcut : shortcuts)
        ids.append(shortcut.id);
    return ids;
}

const QStringList walletIds{u"copy"_s, u"paste"_s, u"undo"_s, u"save"_s, u"spotlight"_s, u"close-window"_s};

} // namespace

TEST(StickerList, IsTheTwentyFourEssentials)
{
    QStringList expected{
        u"copy"_s,       u"paste"_s,        u"undo"_s,        u"save"_s,         u"spotlight"_s,
        u"switch-app"_s, u"close-window"_s, u"force-quit"_s,  u"shot-full"_s,    u"shot-area"_s,
        u"shot-tools"_s, u"emoji"_s,        u"lock"_s,        u"quick-look"_s,   u"new-folder"_s,
        u"trash"_s,      u"dock-toggle"_s,  u"computer"_s,    u"home"_s,         u"icloud"_s,
        u"recents"_s,    u"go-folder"_s,    u"restore-tab"_s, u"minimize-all"_s,
    };
    expected.sort();
    for (const AppLanguage language : allLanguages) {
        QStringList ids = idsIn(stickerList(language));
        ids.sort();
        EXPECT_EQ(ids, expected);
    }
}

TEST(StickerList, KeepsTheCatalogsOrder)
{
    const QStringList catalog = idsIn(ShortcutLibrary::all(AppLanguage::English));
    qsizetype last = -1;
    for (const QString &id : idsIn(stickerList(AppLanguage::English))) {
        EXPECT_GT(catalog.indexOf(id), last) << id.toStdString();
        last = catalog.indexOf(id);
    }
}

TEST(StickerList, IsInTheLanguageAskedFor)
{
    EXPECT_EQ(stickerList(AppLanguage::Czech).constFirst().title, u"Kopírovat"_s);
    EXPECT_EQ(stickerList(AppLanguage::English).constFirst().title, u"Copy"_s);
}

TEST(WalletList, HasItsOwnOrder)
{
    QList<Shortcut> catalog = ShortcutLibrary::all(AppLanguage::English);
    EXPECT_EQ(idsIn(walletList(catalog)), walletIds);
    std::ranges::reverse(catalog);
    EXPECT_EQ(idsIn(walletList(catalog)), walletIds);
}

TEST(WalletList, LeavesOutWhatTheCatalogLacks)
{
    QList<Shortcut> catalog = ShortcutLibrary::all(AppLanguage::English);
    catalog.removeIf(
        [](const Shortcut &shortcut) { return shortcut.id == u"undo"_s || shortcut.id == u"save"_s; });
    EXPECT_EQ(idsIn(walletList(catalog)),
              (QStringList{u"copy"_s, u"paste"_s, u"spotlight"_s, u"close-window"_s}));
    EXPECT_EQ(idsIn(walletList({})), QStringList());
}

TEST(WalletList, TakesTheFirstOfSeveral)
{
    Shortcut first = entry(u"First"_s);
    Shortcut second = entry(u"Second"_s);
    first.id = second.id = u"copy"_s;
    ASSERT_EQ(walletList({first, second}).size(), 1);
    EXPECT_EQ(walletList({first, second}).constFirst().title, u"First"_s);
}

} // namespace keyvora
