// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/DocumentClock.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QDateTime timeWith(const QString &epoch)
{
    QProcessEnvironment environment;
    environment.insert(u"SOURCE_DATE_EPOCH"_s, epoch);
    return documentClock(environment)();
}

} // namespace

TEST(DocumentClock, IsFixedByTheEnvironment)
{
    EXPECT_EQ(timeWith(u"1700000000"_s), QDateTime({2023, 11, 14}, {22, 13, 20}, Qt::UTC));
    EXPECT_EQ(timeWith(u"0"_s), QDateTime({1970, 1, 1}, {0, 0, 0}, Qt::UTC));
}

TEST(DocumentClock, IsTheTimeOfDayOtherwise)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    for (const QDateTime &time : {documentClock(QProcessEnvironment())(), timeWith(QString()),
                                  timeWith(u"soon"_s), timeWith(u"-1"_s), timeWith(u"9999999999999"_s)}) {
        EXPECT_GE(time, before);
        EXPECT_LE(time, QDateTime::currentDateTimeUtc());
    }
}

} // namespace keyvora
