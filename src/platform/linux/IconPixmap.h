// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QIcon>
#include <QList>
#include <QString>

namespace keyvora {

/// One size of an icon, as it travels over the bus.
struct IconPixmap
{
    int width = 0;
    int height = 0;
    QByteArray pixels; ///< rows from the top, 32 bits each: alpha, red, green, blue, not premultiplied

    bool operator==(const IconPixmap &) const = default;
};
using IconPixmapList = QList<IconPixmap>;

/// What a status area shows while the pointer rests on an icon.
struct IconToolTip
{
    QString iconName;
    IconPixmapList iconPixmaps;
    QString title;
    QString text;

    bool operator==(const IconToolTip &) const = default;
};

/// The icon in the sizes that status areas draw; empty for a null icon.
[[nodiscard]] IconPixmapList iconPixmaps(const QIcon &icon);

/// Makes the types above known to D-Bus; needed once before they travel.
void registerIconTypes();

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const IconToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconToolTip &toolTip);

} // namespace keyvora

Q_DECLARE_METATYPE(keyvora::IconPixmap)
Q_DECLARE_METATYPE(keyvora::IconToolTip)
