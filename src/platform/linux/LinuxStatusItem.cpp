// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxStatusItem.h"

#include "platform/linux/XEmbedTray.h"
#include "platform/linux/XEmbedTrayIcon.h"

namespace keyvora {

LinuxStatusItem::LinuxStatusItem(const StatusIcon &icon, const QDBusConnection &sessionBus,
                                 X11Connection *connection, QObject *parent)
    : StatusItem(parent)
    , m_picture(icon.picture)
    , m_notifierItem(icon, sessionBus)
    , m_embeddingTray(connection != nullptr ? std::make_unique<XEmbedTray>(*connection) : nullptr)
{
    connect(&m_notifierItem, &StatusNotifierItem::activated, this, &StatusItem::activated);
    connect(&m_notifierItem, &StatusNotifierItem::hasHostChanged, this, &LinuxStatusItem::update);
    if (m_embeddingTray)
        connect(m_embeddingTray.get(), &XEmbedTray::isPresentChanged, this,
                &LinuxStatusItem::handleEmbeddingTray);
    update();
}

LinuxStatusItem::~LinuxStatusItem() = default;

StatusItem::Host LinuxStatusItem::presentHost() const
{
    if (!m_notifierItem.hasHost())
        return Host::Unknown;
    if (*m_notifierItem.hasHost())
        return Host::StatusNotifier;
    if (!m_embeddingTray)
        return Host::None;
    if (!m_embeddingTray->isPresent())
        return Host::Unknown;
    return *m_embeddingTray->isPresent() ? Host::XEmbed : Host::None;
}

void LinuxStatusItem::handleEmbeddingTray()
{
    // A panel that can do both comes up with its XEmbed side first.
    if (m_embeddingTray->isPresent() == true)
        m_notifierItem.askAgain();
    update();
}

void LinuxStatusItem::update()
{
    const Host host = presentHost();
    // While the desktop is being asked, what held before still does.
    if (host == Host::Unknown || host == m_host)
        return;
    m_host = host;
    showEmbedded(host == Host::XEmbed);
    emit hostChanged(host);
}

void LinuxStatusItem::showEmbedded(bool isShown)
{
    if (isShown && !m_embeddedIcon) {
        m_embeddedIcon = std::make_unique<XEmbedTrayIcon>(m_picture);
        connect(m_embeddedIcon.get(), &XEmbedTrayIcon::activated, this,
                [this](QPoint position) { emit activated(position, QString()); });
    }
    if (m_embeddedIcon)
        m_embeddedIcon->setVisible(isShown);
}

} // namespace keyvora
