// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XEmbedTray.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QPointer>

namespace keyvora {

XEmbedTray::XEmbedTray(X11Connection &connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
    , m_selection(connection.atom("_NET_SYSTEM_TRAY_S" + QByteArray::number(connection.screenNumber())))
    , m_managerMessage(connection.atom("MANAGER"))
{
    connect(&m_connection, &X11Connection::eventReceived, this, &XEmbedTray::handleEvent);
    m_connection.selectRootEvents(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    askForOwner();
}

void XEmbedTray::handleEvent(const xcb_generic_event_t *event)
{
    const uint8_t type = typeOf(*event);
    if (type == XCB_CLIENT_MESSAGE) {
        const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
        if (message->type == m_managerMessage && message->data.data32[1] == m_selection)
            askForOwner();
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto *destruction = reinterpret_cast<const xcb_destroy_notify_event_t *>(event);
        if (destruction->window != m_owner)
            return;
        m_owner = XCB_WINDOW_NONE;
        askForOwner();
    }
}

void XEmbedTray::askForOwner()
{
    const auto cookie = xcb_get_selection_owner(m_connection.xcb(), m_selection);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this)](const void *data) {
        const auto *reply = static_cast<const xcb_get_selection_owner_reply_t *>(data);
        if (self)
            self->ownerAnswered(reply != nullptr ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE));
    });
}

void XEmbedTray::ownerAnswered(xcb_window_t owner)
{
    const bool isWatched = owner == m_owner;
    m_owner = owner;
    if (owner != XCB_WINDOW_NONE && !isWatched) {
        // The window may vanish before its end is watched, so only the same answer once more counts.
        constexpr uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection.xcb(), owner, XCB_CW_EVENT_MASK, &events);
        askForOwner();
        return;
    }
    setPresent(owner != XCB_WINDOW_NONE);
}

void XEmbedTray::setPresent(bool isPresent)
{
    if (m_isPresent == isPresent)
        return;
    m_isPresent = isPresent;
    emit isPresentChanged();
}

} // namespace keyvora
