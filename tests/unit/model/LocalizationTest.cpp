// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Localization.h"

#include "model/Defaults.h"
#include "unit/QtPrinters.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView key{"appLanguage"};

/// A store in a folder of its own.
struct Store
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"defaults.json"_s);
    Defaults defaults{path};
};

} // namespace

TEST(AppLanguage, ComesInTheOrderOfDisplay)
{
    EXPECT_EQ(allLanguages, (std::array{AppLanguage::Czech, AppLanguage::English}));
}

TEST(AppLanguage, IsStoredByItsShortName)
{
    EXPECT_EQ(rawValue(AppLanguage::Czech), u"cs"_s);
    EXPECT_EQ(rawValue(AppLanguage::English), u"en"_s);
    EXPECT_EQ(languageFromRawValue(u"cs"_s), AppLanguage::Czech);
    EXPECT_EQ(languageFromRawValue(u"en"_s), AppLanguage::English);
}

TEST(AppLanguage, IsNotFoundByAnyOtherName)
{
    for (const auto &name : {u"de"_s, u"cs-CZ"_s, u"CS"_s, u"en "_s, u"english"_s, QString()})
        EXPECT_EQ(languageFromRawValue(name), std::nullopt) << name.toStdString();
}

TEST(SystemPreferredLanguage, FollowsTheFirstEntryAlone)
{
    EXPECT_EQ(systemPreferredLanguage({u"cs-CZ"_s, u"en-US"_s}), AppLanguage::Czech);
    EXPECT_EQ(systemPreferredLanguage({u"en-GB"_s, u"cs-CZ"_s}), AppLanguage::English);
    EXPECT_EQ(systemPreferredLanguage({u"sk-SK"_s, u"cs-CZ"_s}), AppLanguage::English);
    EXPECT_EQ(systemPreferredLanguage({QString(), u"cs-CZ"_s}), AppLanguage::English);
}

TEST(SystemPreferredLanguage, IsCzechForWhateverBeginsWithItsName)
{
    EXPECT_EQ(systemPreferredLanguage({u"cs"_s}), AppLanguage::Czech);
    EXPECT_EQ(systemPreferredLanguage({u"cs-Latn-CZ"_s}), AppLanguage::Czech);
    EXPECT_EQ(systemPreferredLanguage({u"csb"_s}), AppLanguage::Czech);
}

TEST(SystemPreferredLanguage, IsEnglishForAnythingElse)
{
    EXPECT_EQ(systemPreferredLanguage({}), AppLanguage::English);
    for (const auto &language : {u"sk"_s, u"de-DE"_s, u"en"_s, u"CS-CZ"_s, u"xcs"_s})
        EXPECT_EQ(systemPreferredLanguage({language}), AppLanguage::English) << language.toStdString();
}

TEST(Localization, StartsWithTheStoredLanguage)
{
    Store store;
    store.defaults.setText(key, u"cs"_s);
    EXPECT_EQ(Localization(store.defaults, {u"en-US"_s}).language(), AppLanguage::Czech);
    store.defaults.setText(key, u"en"_s);
    EXPECT_EQ(Localization(store.defaults, {u"cs-CZ"_s}).language(), AppLanguage::English);
}

TEST(Localization, AsksThePreferredLanguagesWhenNothingIsStored)
{
    Store store;
    EXPECT_EQ(Localization(store.defaults, {u"cs-CZ"_s, u"en-US"_s}).language(), AppLanguage::Czech);
    EXPECT_EQ(Localization(store.defaults, {u"en-GB"_s, u"cs-CZ"_s}).language(), AppLanguage::English);
    EXPECT_EQ(Localization(store.defaults, {}).language(), AppLanguage::English);
}

TEST(Localization, AsksThePreferredLanguagesWhenWhatIsStoredIsNoLanguageOfOurs)
{
    Store store;
    store.defaults.setText(key, u"de"_s);
    EXPECT_EQ(Localization(store.defaults, {u"cs"_s}).language(), AppLanguage::Czech);
    store.defaults.setBoolean(key, true);
    EXPECT_EQ(Localization(store.defaults, {u"cs"_s}).language(), AppLanguage::Czech);
}

TEST(Localization, StoresNothingAtStart)
{
    Store store;
    const Localization localization(store.defaults, {u"cs"_s});
    EXPECT_EQ(store.defaults.text(key), std::nullopt);
    EXPECT_FALSE(QFileInfo::exists(store.path));
}

TEST(Localization, KeepsAStoredLanguageThatItDoesNotKnow)
{
    Store store;
    store.defaults.setText(key, u"de"_s);
    const Localization localization(store.defaults, {u"cs"_s});
    EXPECT_EQ(store.defaults.text(key), u"de"_s);
}

TEST(Localization, StoresAndTellsAChange)
{
    Store store;
    Localization localization(store.defaults, {u"en"_s});
    const QSignalSpy changes(&localization, &Localization::languageChanged);
    localization.setLanguage(AppLanguage::Czech);
    EXPECT_EQ(localization.language(), AppLanguage::Czech);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes.at(0).at(0).value<AppLanguage>(), AppLanguage::Czech);
    EXPECT_EQ(Defaults(store.path).text(key), u"cs"_s);
}

TEST(Localization, HasChangedAndStoredBeforeItTells)
{
    Store store;
    Localization localization(store.defaults, {u"en"_s});
    int told = 0;
    QObject::connect(&localization, &Localization::languageChanged, &localization, [&] {
        ++told;
        EXPECT_EQ(localization.language(), AppLanguage::Czech);
        EXPECT_EQ(store.defaults.text(key), u"cs"_s);
    });
    localization.setLanguage(AppLanguage::Czech);
    EXPECT_EQ(told, 1);
}

TEST(Localization, StoresTheCurrentLanguageWithoutTellingAnybody)
{
    Store store;
    Localization localization(store.defaults, {u"en"_s});
    const QSignalSpy changes(&localization, &Localization::languageChanged);
    localization.setLanguage(AppLanguage::English);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(Defaults(store.path).text(key), u"en"_s);
}

TEST(Localization, PicksTheTextOfTheCurrentLanguage)
{
    Store store;
    Localization localization(store.defaults, {u"cs"_s});
    EXPECT_EQ(localization.text(u"Ano"_s, u"Yes"_s), u"Ano"_s);
    localization.setLanguage(AppLanguage::English);
    EXPECT_EQ(localization.text(u"Ano"_s, u"Yes"_s), u"Yes"_s);
}

TEST(Localization, IsSharedAsLongAsItLives)
{
    Store store;
    {
        const Localization localization(store.defaults, {u"cs"_s});
        EXPECT_EQ(&Localization::shared(), &localization);
    }
    const Localization next(store.defaults, {u"cs"_s});
    EXPECT_EQ(&Localization::shared(), &next);
}

} // namespace keyvora
