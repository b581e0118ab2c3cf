// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/GlowPicture.h"

#include <cmath>
#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr int side = 400;

const QColor blue = QColor::fromRgbF(0.2F, 0.4F, 0.6F);

QImage glow(float opacity)
{
    QColor color = blue;
    color.setAlphaF(opacity);
    QImage image = glowPicture({color, side / 2.0, {side / 2.0, side / 2.0}}, {side, side});
    EXPECT_EQ(QSize(side, side), image.size());
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

TEST(GlowPictureTest, FallsLikeACosine)
{
    const QImage image = glow(0.1F);
    for (const double distance : {0.0, 0.2, 0.4, 0.5, 0.6, 0.8, 0.95}) {
        const double expected = 255 * 0.1 * (1 + std::cos(M_PI * distance)) / 2;
        // The middle is a few pixels, whose noise has no mean.
        EXPECT_NEAR(expected, opacityAt(image, distance), distance == 0 ? 1.0 : 0.35) << distance;
    }
}

TEST(GlowPictureTest, NothingIsDrawnBeyondItsEdge)
{
    const QImage image = glow(1);
    EXPECT_EQ(0, qAlpha(image.pixel(0, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(side - 1, 0)));
    EXPECT_EQ(0, qAlpha(image.pixel(0, side - 1)));
    EXPECT_EQ(0, qAlpha(image.pixel(side - 1, side - 1)));
}

TEST(GlowPictureTest, HasItsColor)
{
    const QRgb middle = glow(1).pixel(side / 2, side / 2);
    EXPECT_GE(qAlpha(middle), 254);
    EXPECT_NEAR(51, qRed(middle), 1);
    EXPECT_NEAR(102, qGreen(middle), 1);
    EXPECT_NEAR(153, qBlue(middle), 1);
}

TEST(GlowPictureTest, NeighboursDifferByNoiseSoThatNoStepsShow)
{
    const QImage image = glow(0.1F);
    int changes = 0;
    for (int x = 0; x + 1 < side / 2; ++x)
        changes += image.pixel(x, side / 2) != image.pixel(x + 1, side / 2) ? 1 : 0;
    // Without it there would be one for each of the 26 levels.
    EXPECT_GT(changes, 40);
}

TEST(GlowPictureTest, APartOfItIsWhatTheWholeShowsThere)
{
    constexpr int shown = 150;
    const GlowLook look{blue, side / 2.0, {30, -20}};
    const QImage part = glowPicture(look, {shown, shown});
    const QImage whole = glow(1);
    const QPoint offset(side / 2 - 30, side / 2 + 20);
    for (int y = 0; y < shown; y += 10) {
        for (int x = 0; x < shown; x += 10)
            EXPECT_NEAR(qAlpha(whole.pixel(QPoint(x, y) + offset)), qAlpha(part.pixel(x, y)), 1);
    }
}

} // namespace

} // namespace keyvora
