// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/SymbolPicture.h"

#include "ui/PictureCache.h"

#include <QPainter>
#include <QSvgRenderer>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QImage drawn(const QString &name, int side, const QColor &color)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(u":/keyvora/symbols/"_s + name + u".svg"_s);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

QImage symbolPicture(const QString &name, int side, const QColor &color)
{
    if (name.isEmpty() || side <= 0)
        return {};
    return PictureCache::picture(u"symbol/%1/%2/%3"_s.arg(name).arg(side).arg(color.rgba()),
                                 [&] { return drawn(name, side, color); });
}

} // namespace keyvora
