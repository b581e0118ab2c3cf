// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

class QPainter;

namespace keyvora {

/// The picture of a shape that comes in many sizes: its border is drawn as it is, what lies between is
/// repeated. All lengths are in pixels of the screen.
///
/// Small pictures are copied to the screen at once, while the toolkit has other threads draw whatever takes
/// more than some ninety lines, and waits for them, which takes longer than to draw it.
struct NinePatch
{
    /// How much of the picture lies between the borders where it is repeated.
    static constexpr int tile = 32;

    /// The length of the picture of something that is so long.
    static constexpr int lengthFor(int length, int border)
    {
        return length < 2 * border + tile ? length : 2 * border + tile;
    }

    QImage image;   ///< as long as `lengthFor` says
    int border = 0; ///< on each side; not negative

    /// Draws all but what lies between all four borders. The painter draws in pixels.
    void drawFrame(const QRect &place, QPainter &painter) const;
    /// What `drawFrame` leaves out; empty where the picture is not repeated in both directions.
    [[nodiscard]] QRect middleOf(const QRect &place) const;
};

} // namespace keyvora
