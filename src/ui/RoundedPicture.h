// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace keyvora {

/// How a rectangle with round corners looks; lengths in units of the item, or in pixels.
struct RoundedLook
{
    QColor color;
    qreal radius = 0;      ///< of the outer edge
    qreal borderWidth = 0; ///< inside of the rectangle; 0 where no border is seen
    QColor borderColor;

    friend bool operator==(const RoundedLook &, const RoundedLook &) = default;

    /// The same in pixels of the screen, of which `scale` are a unit; lines are at least one wide.
    [[nodiscard]] RoundedLook inPixels(const QSize &size, qreal scale) const;
    /// Tells it from others, for `PictureCache`.
    [[nodiscard]] QString name() const;
};

/// The rectangle, in pixels, fills the picture.
QImage roundedPicture(const RoundedLook &look, const QSize &size);

} // namespace keyvora
