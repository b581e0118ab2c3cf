// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeStat.h"

#include "unit/model/ModelPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

using Stats = QHash<QString, PracticeStat>;

TEST(PracticeStat, BeginsUnpractised)
{
    EXPECT_EQ(PracticeStat(), (PracticeStat{.seen = 0, .wrong = 0}));
}

TEST(PracticeStats, AreReadFromAnObjectOfObjects)
{
    const Stats expected{{u"copy"_s, {4, 1}}, {u"šipka →"_s, {1, 0}}};
    EXPECT_EQ(decodePracticeStats(R"({"copy":{"seen":4,"wrong":1},"šipka →":{"wrong":0,"seen":1}})"),
              expected);
}

TEST(PracticeStats, MayBeEmpty)
{
    EXPECT_EQ(decodePracticeStats("{}"), Stats());
}

TEST(PracticeStats, HoldLargeCountsExactly)
{
    const Stats expected{{u"copy"_s, {std::numeric_limits<qint64>::max(), 9007199254740993}}};
    EXPECT_EQ(decodePracticeStats(R"({"copy":{"seen":9223372036854775807,"wrong":9007199254740993}})"),
              expected);
}

TEST(PracticeStats, IgnoreUnknownFields)
{
    EXPECT_EQ(decodePracticeStats(R"({"copy":{"seen":4,"wrong":1,"streak":"x"}})"),
              (Stats{{u"copy"_s, {4, 1}}}));
}

TEST(PracticeStats, AreRejectedAsAWholeWhenOneEntryCannotBeRead)
{
    for (const char *entry :
         {R"({"seen":1})", R"({"wrong":1})", R"({"seen":"1","wrong":0})", R"({"seen":1.5,"wrong":0})",
          R"({"seen":1,"wrong":null})", R"({"seen":true,"wrong":0})", R"({"seen":1e300,"wrong":0})", "[1,0]",
          "7", "null"}) {
        const QByteArray json = QByteArray(R"({"copy":{"seen":4,"wrong":1},"paste":)") + entry + '}';
        EXPECT_EQ(decodePracticeStats(json), std::nullopt) << entry;
    }
}

TEST(PracticeStats, AreRejectedWhenTheyAreNoObject)
{
    for (const char *json : {"", "[]", "7", "{", "null", "\xff"})
        EXPECT_EQ(decodePracticeStats(json), std::nullopt) << json;
}

} // namespace keyvora
