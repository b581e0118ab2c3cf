// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XEmbedTrayIcon.h"

#include <QCursor>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

XEmbedTrayIcon::XEmbedTrayIcon(const QIcon &icon, QObject *parent)
    : QObject(parent)
    , m_icon(icon)
{
    m_icon.setToolTip(u"Keyvora"_s);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &XEmbedTrayIcon::handleClick);
}

void XEmbedTrayIcon::handleClick(QSystemTrayIcon::ActivationReason reason)
{
    // A double click has been a click already.
    if (reason == QSystemTrayIcon::DoubleClick || reason == QSystemTrayIcon::Unknown)
        return;
    const QRect geometry = m_icon.geometry();
    emit activated(geometry.isEmpty() ? QCursor::pos() : geometry.center());
}

} // namespace keyvora
