// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/SymbolPicture.h"

#include "ui/PictureCache.h"

#include <QPainter>
#include <QSvgRenderer>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QImage drawn(const QString &file, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

QImage tinted(QImage image, const QColor &color)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

QImage symbolPicture(const QString &name, int side, const QColor &color)
{
    if (name.isEmpty() || side <= 0)
        return {};
    return PictureCache::picture(u"symbol/%1/%2/%3"_s.arg(name).arg(side).arg(color.rgba()), [&] {
        return tinted(drawn(u":/keyvora/symbols/"_s + name + u".svg"_s, side), color);
    });
}

QImage brandPicture(int side)
{
    if (side <= 0)
        return {};
    return PictureCache::picture(u"brand/%1"_s.arg(side),
                                 [side] { return drawn(u":/keyvora/app.keyvora.Keyvora.svg"_s, side); });
}

} // namespace keyvora
