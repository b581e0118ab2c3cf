// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/VersionOrder.h"

#include "unit/QtPrinters.h"

#include <QString>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row
{
    QString candidate;
    QString current;
    bool isNewer;
};

void expectRows(const QList<Row> &rows)
{
    for (const Row &row : rows)
        EXPECT_EQ(isNewer(row.candidate, row.current), row.isNewer)
            << row.candidate.toStdString() << " against " << row.current.toStdString();
}

/// Each is newer than those before it and than nothing else.
void expectAscending(const QStringList &versions)
{
    for (qsizetype left = 0; left < versions.size(); ++left) {
        for (qsizetype right = 0; right < versions.size(); ++right)
            EXPECT_EQ(isNewer(versions[left], versions[right]), left > right)
                << versions[left].toStdString() << " against " << versions[right].toStdString();
    }
}

/// None is newer than any other.
void expectEqual(const QStringList &versions)
{
    for (const QString &left : versions) {
        for (const QString &right : versions)
            EXPECT_FALSE(isNewer(left, right)) << left.toStdString() << " against " << right.toStdString();
    }
}

} // namespace

TEST(VersionOrder, ComparesNumbersAndNotText)
{
    expectAscending({u"0.9"_s, u"1.2"_s, u"1.9"_s, u"1.10"_s, u"1.99.99"_s, u"2.0"_s, u"2.0.0.1"_s, u"10"_s});
}

TEST(VersionOrder, TakesMissingNumbersForNoughts)
{
    expectEqual({u"1"_s, u"1.0"_s, u"1.0.0"_s, u"1.0.0.0.0"_s});
    expectRows({
        {u"1.2"_s, u"1.2.0"_s, false},
        {u"1.2.1"_s, u"1.2"_s, true},
        {u"1.2"_s, u"1.2.1"_s, false},
        {u"1"_s, u"1.-1"_s, true},
        {u"1.-1"_s, u"1"_s, false},
    });
}

TEST(VersionOrder, DropsEmptyPieces)
{
    expectEqual({u"1.2"_s, u"1..2"_s, u".1.2"_s, u"1.2."_s, u"...1...2..."_s});
    expectRows({{u"1..2"_s, u"1.1.9"_s, true}, {u"1..2"_s, u"1.0.2"_s, true}});
}

TEST(VersionOrder, DropsWhatIsNoWholeNumber)
{
    // Dropped, so that what follows takes its place.
    expectEqual({u"1.3"_s, u"1.2beta.3"_s, u"1. 2.3"_s, u"1.2 .3"_s, u"v.1.3"_s, u"1.0x5.3"_s, u"1.2e1.3"_s,
                 u"1.+.3"_s, u"1.-.3"_s, u"1.+-2.3"_s, u"1.--2.3"_s, u"1.2,5.3"_s, u"1.1_0.3"_s,
                 u"1.\t.3"_s});
    // Digits of other scripts are none.
    expectEqual({u"1.3"_s, u"1.\u0662.3"_s, u"1.\uFF12.3"_s, u"1.².3"_s});
    expectEqual({u"1.3"_s, u"1."_s + QChar(0) + u".3"_s, u"1.2"_s + QChar(0) + u".3"_s});
    expectRows({{u"1.2beta.3"_s, u"1.2"_s, true}, {u"2beta"_s, u"1"_s, false}});
}

TEST(VersionOrder, TakesNothingForNought)
{
    expectEqual({u""_s, u"."_s, u"latest"_s, u"0"_s, u"0.0"_s, u"-0"_s, u"+0"_s, u"0000"_s});
    expectRows({{u"1"_s, u""_s, true}, {u""_s, u"1"_s, false}, {u""_s, u"-1"_s, true}});
}

TEST(VersionOrder, TakesSigns)
{
    expectAscending({u"-20"_s, u"-3"_s, u"-2"_s, u"0"_s, u"2"_s, u"+3"_s, u"20"_s});
    expectEqual({u"1.2"_s, u"+1.+2"_s});
    expectAscending({u"1.-10.5"_s, u"1.-9"_s, u"1"_s});
}

TEST(VersionOrder, HasNoLargestNumber)
{
    expectAscending({u"-18446744073709551617"_s, u"-9223372036854775809"_s, u"9223372036854775807"_s,
                     u"9223372036854775808"_s, u"18446744073709551615"_s, u"18446744073709551616"_s,
                     u"99999999999999999999"_s, u"100000000000000000000"_s});
    constexpr qsizetype many = 10'000;
    const QString nines(many, u'9');
    expectRows({
        {u'1' + QString(many, u'0'), nines, true},
        {nines, u'1' + QString(many, u'0'), false},
        {u"1."_s + nines, u"1."_s + nines, false},
        {nines + u'9', nines, true},
    });
}

TEST(VersionOrder, PassesOverLeadingZeros)
{
    expectEqual({u"1.7"_s, u"1.07"_s, u"01.0000000000000000000000000000007"_s, u"+001.+007"_s});
    expectRows({
        {u"1.010"_s, u"1.9"_s, true},
        {u"1.0000000000000000000000000000009"_s, u"1.10"_s, false},
        {u"-010"_s, u"-9"_s, false},
    });
}

} // namespace keyvora
