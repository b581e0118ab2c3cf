// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/DashedOutline.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace keyvora {

namespace {

constexpr qreal dash = 4;
constexpr qreal gap = 2;

} // namespace

DashedOutline::DashedOutline(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &DashedOutline::changed, this, [this] { update(); });
}

void DashedOutline::paint(QPainter *painter)
{
    const qreal inset = m_lineWidth / 2;
    const QRectF middle = boundingRect().adjusted(inset, inset, -inset, -inset);
    const qreal radius = std::max(0.0, m_radius - inset);
    QPainterPath path;
    path.addRoundedRect(middle, radius, radius);
    // A whole number of dashes, so that the last does not run into the first.
    const qreal count = std::max(1.0, std::round(path.length() / (dash + gap)));
    const qreal stretch = path.length() / count / (dash + gap);
    QPen pen(m_color, m_lineWidth, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({dash * stretch / m_lineWidth, gap * stretch / m_lineWidth});
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->drawPath(path);
}

} // namespace keyvora
