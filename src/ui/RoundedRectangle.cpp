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

QPainterPath rounded(const QRectF &place, qreal radius)
{
    const qreal most = std::min(place.width(), place.height()) / 2;
    const qreal fitting = std::clamp(radius, 0.0, most);
    QPainterPath path;
    path.addRoundedRect(place, fitting, fitting);
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

/// Draws in pixels.
void draw(const Shape &shape, QPainter &painter)
{
    const QPainterPath outer = rounded(shape.place, shape.radius);
    if (shape.borderWidth <= 0 || shape.borderColor.alpha() == 0) {
        painter.fillPath(outer, shape.color);
        return;
    }
    const qreal line = shape.borderWidth;
    const QRectF place = shape.place.adjusted(line, line, -line, -line);
    const QPainterPath inner = place.isValid() ? rounded(place, shape.radius - line) : QPainterPath();
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
