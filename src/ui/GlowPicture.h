// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

namespace keyvora {

/// A soft disc of a colour that fades out towards its edge; lengths in pixels.
struct GlowLook
{
    QColor color; ///< in the middle
    qreal radius = 1;
    QPointF middle; ///< in the picture, or beyond it
};

/// As much of the disc as a picture of that size shows.
QImage glowPicture(const GlowLook &look, const QSize &size);

} // namespace keyvora
