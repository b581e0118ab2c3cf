// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PixelNode.h"

#include "ui/LineWidth.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <cmath>
#include <utility>

namespace keyvora {

namespace {

/// Where a stretch begins, and its length, in whole pixels.
std::pair<int, int> wholePixels(qreal begin, qreal length)
{
    constexpr qreal thin = 4;
    const qreal first = std::round(begin);
    // Lines are as thick in one place as in another, which ends that are rounded by themselves are not.
    const qreal whole = length < thin ? lineWidthInPixels(length) : std::round(begin + length) - first;
    return {static_cast<int>(first), static_cast<int>(whole)};
}

QRect wholePixels(const QRectF &exact)
{
    const auto [left, width] = wholePixels(exact.left(), exact.width());
    const auto [top, height] = wholePixels(exact.top(), exact.height());
    return {left, top, width, height};
}

} // namespace

PixelNode::PixelNode(QQuickWindow *window)
    : m_window(window)
{
}

void PixelNode::setPlace(const QRectF &place)
{
    m_place = place;
}

void PixelNode::render(const RenderState *state)
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
    const QTransform toPixels = matrix()->toTransform() * QTransform::fromScale(ratio, ratio);
    draw(wholePixels(toPixels.mapRect(m_place)), toPixels.m11(), *painter);
}

} // namespace keyvora
