// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UnusedMemory.h"

#include <QDate>
#include <QFile>
#include <QLocale>
#include <QString>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a library has in memory of what is only ever read of its file, in KiB.
int readOnlyMemoryOf(const QString &library)
{
    QFile mappings(u"/proc/self/smaps"_s);
    EXPECT_TRUE(mappings.open(QIODevice::ReadOnly));
    int sum = 0;
    bool isLibrary = false;
    bool isCode = false;
    for (const QString &line : QString::fromUtf8(mappings.readAll()).split(u'\n')) {
        const QStringList parts = line.split(u' ', Qt::SkipEmptyParts);
        if (parts.size() >= 5 && parts[0].contains(u'-')) {
            isLibrary = parts.last().contains(library);
            isCode = parts[1] == "r-xp"_L1;
        } else if (isLibrary && isCode && parts.size() == 3 && parts[0] == "Rss:"_L1) {
            sum += parts[1].toInt();
        }
    }
    return sum;
}

/// Has the library's code do something that nothing else here does.
QString useLibrary()
{
    return QLocale(QLocale::Czech, QLocale::CzechRepublic).toString(QDate(2026, 1, 2), QLocale::LongFormat);
}

TEST(UnusedMemoryTest, GivesBackCodeThatWasRead)
{
    const QString before = useLibrary();
    const int mapped = readOnlyMemoryOf(u"libQt6Core"_s);
    returnUnusedMemory();
    // The look itself needs some of it again.
    EXPECT_LT(readOnlyMemoryOf(u"libQt6Core"_s), mapped);
    EXPECT_EQ(before, useLibrary());
}

TEST(UnusedMemoryTest, WhatWasWrittenStays)
{
    static int initialized = 5;
    static int zeroed = 0;
    auto allocated = std::make_unique<QString>(u"text"_s);
    initialized = 7;
    zeroed = 8;
    returnUnusedMemory();
    EXPECT_EQ(7, initialized);
    EXPECT_EQ(8, zeroed);
    EXPECT_EQ(u"text"_s, *allocated);
}

TEST(UnusedMemoryTest, OtherThreadsWorkOn)
{
    constexpr int rounds = 200;
    QStringList dates;
    const std::unique_ptr<QThread> worker(QThread::create([&dates] {
        for (int i = 0; i < rounds; ++i)
            dates.append(useLibrary());
    }));
    worker->start();
    do
        returnUnusedMemory();
    while (!worker->isFinished());
    worker->wait();
    EXPECT_EQ(QStringList(rounds, useLibrary()), dates);
}

} // namespace

} // namespace keyvora
