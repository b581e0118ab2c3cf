// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/SheetPainter.h"

#include "cheatsheet/PictureGlyphs.h"

#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

namespace keyvora {

namespace {

QColor black(qreal opacity)
{
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

/// A square whose sides cross at the corners and end in three quarters of a circle there; centred on the
/// origin. `side` is half of the square's, `radius` the circles'.
QPainterPath loopedSquare(qreal side, qreal radius)
{
    const QRectF circle(0, 0, 2 * radius, 2 * radius);
    constexpr qreal loop = 270;
    QPainterPath path(QPointF(-side, -side - radius));
    path.arcTo(circle.translated(-side - 2 * radius, -side - 2 * radius), 0, loop);
    path.arcTo(circle.translated(side, -side - 2 * radius), 270, loop);
    path.arcTo(circle.translated(side, side), 180, loop);
    path.arcTo(circle.translated(-side - 2 * radius, side), 90, loop);
    path.closeSubpath();
    return path;
}

void paintText(QPainter &painter, const SheetText &text)
{
    painter.setPen(black(text.opacity));
    for (const QGlyphRun &run : text.line.runs) {
        if (hasPictureGlyphs(run.rawFont()))
            paintPictureGlyphs(painter, text.baseline, run);
        else
            painter.drawGlyphRun(text.baseline, run);
    }
}

void paintOutline(QPainter &painter, const SheetOutline &outline)
{
    constexpr qreal half = 0.5;
    const qreal radius = outline.radius - half;
    painter.setPen(QPen(black(outline.opacity), 2 * half));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outline.rect.adjusted(half, half, -half, -half), radius, radius);
}

/// In the proportions of the application icon, in parts of its side.
void paintSign(QPainter &painter, const QRectF &rect)
{
    constexpr qreal corner = 0.234;
    constexpr qreal squareSide = 0.0889;
    constexpr qreal loopRadius = 0.0684;
    constexpr qreal stroke = 0.041;
    const qreal side = rect.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(rect, corner * side, corner * side);
    painter.strokePath(loopedSquare(squareSide * side, loopRadius * side).translated(rect.center()),
                       QPen(Qt::white, stroke * side, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
}

} // namespace

void paintSheet(QPainter &painter, const SheetElements &elements)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    for (const QRectF &sign : elements.signs)
        paintSign(painter, sign);
    for (const SheetRule &rule : elements.rules)
        painter.fillRect(rule.rect, black(rule.opacity));
    for (const SheetOutline &outline : elements.outlines)
        paintOutline(painter, outline);
    for (const SheetText &text : elements.texts)
        paintText(painter, text);
    painter.restore();
}

} // namespace keyvora
