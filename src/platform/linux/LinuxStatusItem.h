// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/StatusIcon.h"
#include "platform/linux/StatusNotifierItem.h"

#include <QDBusConnection>
#include <QIcon>

#include <memory>

namespace keyvora {

class X11Connection;
class XEmbedTray;
class XEmbedTrayIcon;

/// The icon on a Linux desktop: over the session bus where a status area reads it there, else embedded in an
/// XEmbed one, never in both.
class LinuxStatusItem : public StatusItem
{
    Q_OBJECT

public:
    /// The connection is borrowed and must outlive the object; without one, XEmbed status areas are not used.
    LinuxStatusItem(const StatusIcon &icon, const QDBusConnection &sessionBus, X11Connection *connection,
                    QObject *parent = nullptr);
    ~LinuxStatusItem() override;

    [[nodiscard]] Host host() const override { return m_host; }

private:
    [[nodiscard]] Host presentHost() const;
    void handleEmbeddingTray();
    void update();
    void showEmbedded(bool isShown);

    QIcon m_picture;
    StatusNotifierItem m_notifierItem;
    std::unique_ptr<XEmbedTray> m_embeddingTray;
    std::unique_ptr<XEmbedTrayIcon> m_embeddedIcon; ///< null until such a status area is used
    Host m_host = Host::Unknown;
};

} // namespace keyvora
