// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/GlowImageProvider.h"

#include <cmath>
#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int side = 400;

QImage glow(const QString &color)
{
    GlowImageProvider provider;
    QSize size;
    const QImage image = provider.requestImage(color, &size, {side, side});
    EXPECT_EQ(QSize(side, side), size);
    EXPECT_EQ(size, image.size());
    return image;
}

/// The mean opacity, from 0 to 255, of the pixels that are this far from the middle, in parts of the radius.
double opacityAt(const QImage &image, double distance)
{
    constexpr int directions = 2'000;
    double sum = 0;
    for (int i = 0; i < directions; ++i) {
        const double angle = 2 * M_PI * i / directions;
        const double radius = distance * side / 2;
        const auto x = static_cast<int>(std::lround(side / 2.0 + radius * std::cos(angle)));
        const auto y = static_cast<int>(std::lround(side / 2.0 + radius * std::sin(angle)));
        sum += qAlpha(image.pixel(std::min(x, side - 1), std::min(y, side - 1)));
    }
    return sum / directions;
}

TEST(GlowImageProviderTest, FallsLikeACosine)
{
    const QImage image = glow(u"0.2/0.4/0.6/0.1"_s);
    for (const double distance : {0.0, 0.2, 0.4, 0.5, 0.6, 0.8, 0.95}) {
        const double expected = 255 * 0.1 * (1 + std::cos(M_PI * distance)) / 2;
        // The middle is a few pixels, whose noise has no mean.
        EXPECT_NEAR(expected, opacityAt(image, distance), distance == 0 ? 1.0 : 0.35) << distance;
    }
}

TEST(GlowImageProviderTest, NothingIsDrawnBeyondItsEdge)
{
    const QImage image = glow(u"0.2/0.4/0.6/1"_s);
    EXPECT_EQ(0, qAlpha(image.pixel(0, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(side - 1, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(0, side - 1)));
    EXPECT_EQ(0, qAlpha(image.pixel(side - 1, side - 1)));
}

TEST(GlowImageProviderTest, HasItsColor)
{
    const QRgb middle = glow(u"0.2/0.4/0.6/1"_s).pixel(side / 2, side / 2);
    EXPECT_GE(qAlpha(middle), 254);
    EXPECT_NEAR(51, qRed(middle), 1);
    EXPECT_NEAR(102, qGreen(middle), 1);
    EXPECT_NEAR(153, qBlue(middle), 1);
}

TEST(GlowImageProviderTest, NeighboursDifferByNoiseSoThatNoStepsShow)
{
    const QImage image = glow(u"0.2/0.4/0.6/0.1"_s);
    int changes = 0;
    for (int x = 0; x + 1 < side / 2; ++x)
        changes += image.pixel(x, side / 2) != image.pixel(x + 1, side / 2) ? 1 : 0;
    // Without it there would be one for each of the 26 levels.
    EXPECT_GT(changes, 40);
}

TEST(GlowImageProviderTest, WhatIsNoColorIsDrawnAsOneThatIs)
{
    EXPECT_EQ(glow(u"0/1/0/1"_s), glow(u"-5/7/none/99"_s));
}

} // namespace

} // namespace keyvora
