// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/LineWidth.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(LineWidth, IsOneAtLeast)
{
    for (const double exact : {0.1, 0.9, 1.0})
        EXPECT_EQ(lineWidthInPixels(exact), 1) << exact;
}

TEST(LineWidth, IsTheNearestNumberOfWholePixels)
{
    EXPECT_EQ(lineWidthInPixels(1.25), 1);
    EXPECT_EQ(lineWidthInPixels(1.75), 2);
    EXPECT_EQ(lineWidthInPixels(2.0), 2);
    EXPECT_EQ(lineWidthInPixels(2.75), 3);
}

TEST(LineWidth, IsTheLesserOfTwoThatAreAsNear)
{
    EXPECT_EQ(lineWidthInPixels(1.5), 1);
    EXPECT_EQ(lineWidthInPixels(2.5), 2);
}

} // namespace keyvora
