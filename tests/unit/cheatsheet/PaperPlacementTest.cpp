// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PaperPlacement.h"

#include <QRectF>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr QSizeF a4(559, 806);

QRectF placed(QSizeF page, QSizeF paper)
{
    return placeOnPaper(page, paper).mapRect(QRectF(QPointF(), page));
}

void expectNear(const QRectF &actual, const QRectF &expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-6);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-6);
    EXPECT_NEAR(actual.width(), expected.width(), 1e-6);
    EXPECT_NEAR(actual.height(), expected.height(), 1e-6);
}

} // namespace

TEST(PaperPlacement, KeepsASmallPageAsItIsInTheMiddle)
{
    expectNear(placed({243, 153}, a4), {158, 326.5, 243, 153});
}

TEST(PaperPlacement, MakesATallPageSmaller)
{
    // Twice as high as the paper.
    expectNear(placed({559, 1612}, a4), {139.75, 0, 279.5, 806});
}

TEST(PaperPlacement, MakesAWidePageSmaller)
{
    // Twice as wide as the paper.
    expectNear(placed({1612, 500}, a4.transposed()), {0, 154.5, 806, 250});
}

TEST(PaperPlacement, TurnsAPageThatStaysLargerSo)
{
    // Higher than wide, on a paper that is wider than high.
    expectNear(placed({559, 806}, {806, 559}), {0, 0, 806, 559});
    expectNear(placed({1612, 1118}, {559, 806}), {0, 0, 559, 806});
}

TEST(PaperPlacement, DoesNotTurnAPageThatFits)
{
    EXPECT_FALSE(placeOnPaper({243, 153}, {300, 900}).isRotating());
    EXPECT_FALSE(placeOnPaper({300, 300}, {200, 100}).isRotating());
}

TEST(PaperPlacement, OfNothingIsTheIdentity)
{
    EXPECT_TRUE(placeOnPaper({0, 100}, a4).isIdentity());
    EXPECT_TRUE(placeOnPaper({100, 100}, {}).isIdentity());
}

} // namespace keyvora
