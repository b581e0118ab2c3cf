// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QObject>
#include <QPoint>
#include <QSystemTrayIcon>

namespace keyvora {

/// The icon as a window that an XEmbed status area embeds; needs a QApplication. At its first use the toolkit
/// decides once per process which kind of status area there is, so this is made only where no other kind
/// runs.
class XEmbedTrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit XEmbedTrayIcon(const QIcon &icon, QObject *parent = nullptr);

    void setVisible(bool visible) { m_icon.setVisible(visible); }

signals:
    void activated(QPoint position);

private:
    void handleClick(QSystemTrayIcon::ActivationReason reason);

    QSystemTrayIcon m_icon;
};

} // namespace keyvora
