// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/RoundedPicture.h"

#include "ui/LineWidth.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QPainterPath rounded(const QRectF &place, qreal radius)
{
    QPainterPath path;
    if (place.isValid())
        path.addRoundedRect(place, std::max(0.0, radius), std::max(0.0, radius));
    return path;
}

} // namespace

RoundedLook RoundedLook::inPixels(const QSize &size, qreal scale) const
{
    RoundedLook look = *this;
    look.radius = std::clamp(radius * scale, 0.0, std::min(size.width(), size.height()) / 2.0);
    look.borderWidth = borderWidth > 0 ? lineWidthInPixels(borderWidth * scale) : 0;
    return look;
}

QString RoundedLook::name() const
{
    return u"%1/%2/%3/%4"_s.arg(color.rgba()).arg(radius).arg(borderWidth).arg(borderColor.rgba());
}

QImage roundedPicture(const RoundedLook &look, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place(QPointF(), size);
    const qreal line = look.borderWidth;
    const QPainterPath inner = rounded(place.adjusted(line, line, -line, -line), look.radius - line);
    if (line > 0) {
        QPainterPath border = rounded(place, look.radius);
        // One over the other, nothing of what is below shows between them. Else, what is within both paths is
        // not filled.
        if (look.borderColor.alpha() < 255 || look.color.alpha() < 255)
            border.addPath(inner);
        painter.fillPath(border, look.borderColor);
    }
    painter.fillPath(inner, look.color);
    return image;
}

} // namespace keyvora
