// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PictureGlyphs.h"

#include <QImage>
#include <QPainter>
#include <QRawFont>

namespace keyvora {

bool hasPictureGlyphs(const QRawFont &font)
{
    // Where the pictures of each size are found; the table is short, unlike that of the pictures.
    return !font.fontTable("CBLC").isEmpty();
}

void paintPictureGlyphs(QPainter &painter, QPointF baseline, const QGlyphRun &run)
{
    constexpr qreal dotsPerPoint = 8;
    const QRectF bounds(run.boundingRect().toAlignedRect());
    if (bounds.isEmpty())
        return;
    QImage image((bounds.size() * dotsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter imagePainter(&image);
        imagePainter.setRenderHint(QPainter::SmoothPixmapTransform);
        imagePainter.scale(dotsPerPoint, dotsPerPoint);
        imagePainter.drawGlyphRun(-bounds.topLeft(), run);
    }
    painter.drawImage(bounds.translated(baseline), image);
}

} // namespace keyvora
