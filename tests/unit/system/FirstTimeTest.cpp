// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/FirstTime.h"

#include "unit/QtPrinters.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView flag{"hasLaunchedBefore"};
constexpr QLatin1StringView otherFlag{"hasSeenOnboarding"};

struct Store
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"defaults.json"_s);
    Defaults defaults{path};
};

} // namespace

TEST(FirstTime, IsOnlyOnce)
{
    Store store;
    EXPECT_TRUE(isFirstTime(store.defaults, flag));
    EXPECT_TRUE(isFirstTime(store.defaults, flag));
    rememberFirstTime(store.defaults, flag);
    EXPECT_FALSE(isFirstTime(store.defaults, flag));
}

TEST(FirstTime, IsRememberedByTheStore)
{
    Store store;
    rememberFirstTime(store.defaults, flag);
    Defaults later(store.path);
    EXPECT_EQ(later.boolean(flag), true);
    EXPECT_FALSE(isFirstTime(later, flag));
}

TEST(FirstTime, IsThereForEachFlag)
{
    Store store;
    rememberFirstTime(store.defaults, flag);
    EXPECT_TRUE(isFirstTime(store.defaults, otherFlag));
    EXPECT_FALSE(isFirstTime(store.defaults, flag));
}

TEST(FirstTime, IsStillToComeWhereTheFlagSaysNo)
{
    Store store;
    store.defaults.setBoolean(flag, false);
    EXPECT_TRUE(isFirstTime(store.defaults, flag));
    rememberFirstTime(store.defaults, flag);
    EXPECT_FALSE(isFirstTime(store.defaults, flag));
}

TEST(FirstTime, IsStillToComeWhereTheFlagIsNone)
{
    Store store;
    store.defaults.setText(flag, u"true"_s);
    EXPECT_TRUE(isFirstTime(store.defaults, flag));
    rememberFirstTime(store.defaults, flag);
    EXPECT_FALSE(isFirstTime(store.defaults, flag));
}

} // namespace keyvora
