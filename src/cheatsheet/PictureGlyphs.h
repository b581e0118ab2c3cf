// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QGlyphRun>
#include <QPointF>

class QPainter;

namespace keyvora {

/// Whether a font's glyphs are pictures, as those of coloured emoji are. A document cannot hold them as text.
bool hasPictureGlyphs(const QRawFont &font);

/// Draws a run of such a font as an image that is fine enough for print.
void paintPictureGlyphs(QPainter &painter, QPointF baseline, const QGlyphRun &run);

} // namespace keyvora
