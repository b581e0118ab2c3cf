// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/SidebarSelection.h"

#include "unit/model/ModelPrinters.h"

#include <QSet>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

using Kind = SidebarSelection::Kind;
using Category = Shortcut::Category;

constexpr std::array allKinds{Kind::all,     Kind::favorites, Kind::category, Kind::keyboard,
                              Kind::sticker, Kind::firstAid,  Kind::daily,    Kind::practice};

} // namespace

TEST(SidebarSelection, BeginsWithEverything)
{
    EXPECT_EQ(SidebarSelection().kind, Kind::all);
}

TEST(SidebarSelection, ComesInTheOrderOfTheSidebar)
{
    for (size_t i = 0; i < allKinds.size(); ++i)
        EXPECT_EQ(static_cast<size_t>(allKinds[i]), i);
}

TEST(SidebarSelection, EqualsItselfAlone)
{
    for (const Kind left : allKinds) {
        for (const Kind right : allKinds)
            EXPECT_EQ(SidebarSelection{left} == SidebarSelection{right}, left == right);
    }
}

TEST(SidebarSelection, TellsCategoriesApart)
{
    for (const Category left : allCategories) {
        for (const Category right : allCategories) {
            EXPECT_EQ((SidebarSelection{Kind::category, left} == SidebarSelection{Kind::category, right}),
                      left == right);
        }
    }
}

TEST(SidebarSelection, MindsTheCategoryOnlyWhereItMeansSomething)
{
    const SidebarSelection plain{Kind::practice};
    const SidebarSelection withRemains{Kind::practice, Category::profi};
    EXPECT_EQ(plain, withRemains);
    EXPECT_EQ(qHash(plain), qHash(withRemains));
}

TEST(SidebarSelection, HashesAccordingToEquality)
{
    QSet<SidebarSelection> selections;
    QSet<size_t> hashes;
    for (const Kind kind : allKinds) {
        for (const Category category : allCategories) {
            selections.insert({kind, category});
            hashes.insert(qHash(SidebarSelection{kind, category}));
        }
    }
    EXPECT_EQ(selections.size(), 14);
    EXPECT_EQ(hashes.size(), 14);
}

} // namespace keyvora
