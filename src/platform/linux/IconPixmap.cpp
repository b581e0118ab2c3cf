// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/IconPixmap.h"

#include <QDBusMetaType>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

#include <array>

namespace keyvora {

namespace {

/// Edge lengths in pixels: panels draw icons at 16 to 24, or at twice that on dense screens.
constexpr std::array sizes = {16, 22, 24, 32, 48};

IconPixmap toPixmap(const QImage &source)
{
    const QImage image = source.convertToFormat(QImage::Format_ARGB32);
    IconPixmap pixmap{image.width(), image.height(), QByteArray(image.sizeInBytes(), Qt::Uninitialized)};
    // Rows of 32-bit pixels have no padding, so that all of them convert at once.
    const qsizetype pixelCount = qsizetype{image.width()} * image.height();
    qToBigEndian<quint32>(image.constBits(), pixelCount, pixmap.pixels.data());
    return pixmap;
}

} // namespace

IconPixmapList iconPixmaps(const QIcon &icon)
{
    IconPixmapList pixmaps;
    for (const int size : sizes) {
        const QPixmap pixmap = icon.pixmap(QSize(size, size), 1.0);
        // An icon that is only there in small sizes is not enlarged; each size is listed once.
        if (!pixmap.isNull() && (pixmaps.isEmpty() || pixmaps.constLast().width < pixmap.width()))
            pixmaps.append(toPixmap(pixmap.toImage()));
    }
    return pixmaps;
}

void registerIconTypes()
{
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmapList>();
    qDBusRegisterMetaType<IconToolTip>();
}

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const IconToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.iconPixmaps << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.iconPixmaps >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

} // namespace keyvora
