// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/RoundedRectangle.h"

#include <QMatrix4x4>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <QSGRenderNode>
#include <QSGRendererInterface>

#include <algorithm>
#include <cmath>
#include <utility>

namespace keyvora {

namespace {

/// What is drawn; lengths in units of the item.
struct Shape
{
    QRectF place;
    QColor color;
    qreal radius = 0;
    qreal borderWidth = 0;
    QColor borderColor;

    friend bool operator==(const Shape &, const Shape &) = default;
};

qreal fittingRadius(const QRectF &place, qreal radius)
{
    return std::clamp(radius, 0.0, std::min(place.width(), place.height()) / 2);
}

QPainterPath rounded(const QRectF &place, qreal radius)
{
    const qreal fitting = fittingRadius(place, radius);
    QPainterPath path;
    path.addRoundedRect(place, fitting, fitting);
    return path;
}

/// The upper part of a rounded rectangle, down to a straight edge below its round corners.
QPainterPath upperPart(const QRectF &place, qreal radius, qreal bottom)
{
    const qreal side = 2 * fittingRadius(place, radius);
    QPainterPath path(QPointF(place.left(), bottom));
    path.arcTo(QRectF(place.left(), place.top(), side, side), 180, -90);
    path.arcTo(QRectF(place.right() - side, place.top(), side, side), 90, -90);
    path.lineTo(place.right(), bottom);
    path.closeSubpath();
    return path;
}

/// Where a stretch begins, and its length, in whole pixels.
std::pair<qreal, qreal> wholePixels(qreal begin, qreal length)
{
    constexpr qreal thin = 4;
    const qreal first = std::round(begin);
    // Lines are as thick in one place as in another, which ends that are rounded by themselves are not.
    return {first, length < thin ? std::max(1.0, std::round(length)) : std::round(begin + length) - first};
}

void fill(const QPainterPath &outer, const QPainterPath &inner, const Shape &shape, QPainter &painter)
{
    // One over the other, nothing of what is below shows between them.
    const bool canCover = shape.borderColor.alpha() == 255 && shape.color.alpha() == 255;
    QPainterPath border = outer;
    // What is within both paths is not filled.
    if (!canCover)
        border.addPath(inner);
    painter.fillPath(border, shape.borderColor);
    if (shape.color.alpha() > 0)
        painter.fillPath(inner, shape.color);
}

/// Draws in pixels. Only round corners are drawn as paths: the toolkit hands a path of many lines to other
/// threads and waits for them, which takes longer than drawing it.
void draw(const Shape &shape, QPainter &painter)
{
    const QRectF place = shape.place;
    const bool hasBorder = shape.borderWidth > 0 && shape.borderColor.alpha() > 0;
    const qreal line = hasBorder ? shape.borderWidth : 0;
    const QRectF within = place.adjusted(line, line, -line, -line);
    const qreal corner = std::ceil(std::max(fittingRadius(place, shape.radius), line));
    if (place.height() <= 2 * corner || !within.isValid()) {
        if (hasBorder)
            fill(rounded(place, shape.radius),
                 within.isValid() ? rounded(within, shape.radius - line) : QPainterPath(), shape, painter);
        else
            painter.fillPath(rounded(place, shape.radius), shape.color);
        return;
    }

    const QRectF middle = place.adjusted(0, corner, 0, -corner);
    const QPainterPath outer = upperPart(place, shape.radius, middle.top());
    const QPainterPath inner =
        hasBorder ? upperPart(within, shape.radius - line, middle.top()) : QPainterPath();
    const QTransform upsideDown(1, 0, 0, -1, 0, place.top() + place.bottom());
    if (hasBorder) {
        fill(outer, inner, shape, painter);
        fill(upsideDown.map(outer), upsideDown.map(inner), shape, painter);
        painter.fillRect(QRectF(middle.topLeft(), QSizeF(line, middle.height())), shape.borderColor);
        painter.fillRect(QRectF(within.right(), middle.top(), line, middle.height()), shape.borderColor);
    } else {
        painter.fillPath(outer, shape.color);
        painter.fillPath(upsideDown.map(outer), shape.color);
    }
    if (shape.color.alpha() > 0)
        painter.fillRect(middle.adjusted(line, 0, -line, 0), shape.color);
}

class Node : public QSGRenderNode
{
public:
    explicit Node(QQuickWindow *window)
        : m_window(window)
    {
    }

    void setShape(const Shape &shape)
    {
        if (shape == m_shape)
            return;
        m_shape = shape;
        markDirty(DirtyMaterial);
    }

    [[nodiscard]] QRectF rect() const override { return m_shape.place; }
    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }

    void render(const RenderState *state) override
    {
        // What is clipped away as a whole is asked for, too.
        const QRegion *clip = state->clipRegion();
        if (clip == nullptr || clip->isEmpty())
            return;
        auto *painter = static_cast<QPainter *>(
            m_window->rendererInterface()->getResource(m_window, QSGRendererInterface::PainterResource));
        if (painter == nullptr)
            return;
        // Regions are those of the window, so before its coordinates are left.
        painter->setClipRegion(*clip, Qt::ReplaceClip);
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        draw(inPixels(matrix()->toTransform() * QTransform::fromScale(ratio, ratio)), *painter);
    }

private:
    [[nodiscard]] Shape inPixels(const QTransform &toPixels) const
    {
        const qreal scale = toPixels.m11();
        const QRectF exact = toPixels.mapRect(m_shape.place);
        Shape shape = m_shape;
        const auto [left, width] = wholePixels(exact.left(), exact.width());
        const auto [top, height] = wholePixels(exact.top(), exact.height());
        shape.place = QRectF(left, top, width, height);
        shape.radius *= scale;
        if (shape.borderWidth > 0)
            shape.borderWidth = std::max(1.0, std::round(shape.borderWidth * scale));
        return shape;
    }

    QQuickWindow *m_window;
    Shape m_shape;
};

} // namespace

RoundedRectangle::RoundedRectangle(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &RoundedRectangle::changed, this, &QQuickItem::update);
}

QSGNode *RoundedRectangle::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    const bool hasBorder = m_borderWidth > 0 && m_borderColor.alpha() > 0;
    if (size().isEmpty() || (m_color.alpha() == 0 && !hasBorder)) {
        delete old;
        return nullptr;
    }
    Node *node = old != nullptr ? static_cast<Node *>(old) : new Node(window());
    node->setShape({boundingRect(), m_color, m_radius, hasBorder ? m_borderWidth : 0, m_borderColor});
    return node;
}

} // namespace keyvora
