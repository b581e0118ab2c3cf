// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Compositor.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QPointer>

#include <xcb/xfixes.h>

namespace keyvora {

X11Compositor::X11Compositor(X11Connection &connection, QObject *parent)
    : Compositor(parent)
    , m_connection(connection)
    , m_selection(connection.atom("_NET_WM_CM_S" + QByteArray::number(connection.screenNumber())))
{
    connect(&m_connection, &X11Connection::eventReceived, this, &X11Compositor::handleEvent);
    followOwner();
    readOwner();
}

void X11Compositor::followOwner()
{
    const xcb_query_extension_reply_t *extension = m_connection.extension(xcb_xfixes_id);
    if (extension == nullptr)
        return;
    m_ownerEvent = static_cast<uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    // The server ignores the other requests of the extension until it has been asked for its version.
    const auto version =
        xcb_xfixes_query_version(m_connection.xcb(), XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    m_connection.expectReply(version.sequence, [](const void *) {});
    xcb_xfixes_select_selection_input(m_connection.xcb(), m_connection.root(), m_selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

void X11Compositor::readOwner()
{
    const auto request = xcb_get_selection_owner(m_connection.xcb(), m_selection);
    m_connection.expectReply(request.sequence, [self = QPointer(this)](const void *reply) {
        const auto *owner = static_cast<const xcb_get_selection_owner_reply_t *>(reply);
        if (self)
            self->setRunning(owner != nullptr && owner->owner != XCB_WINDOW_NONE);
    });
}

void X11Compositor::handleEvent(const xcb_generic_event_t *event)
{
    if (m_ownerEvent == 0 || typeOf(*event) != m_ownerEvent)
        return;
    // Events and replies may overtake each other, replies among themselves may not.
    if (reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event)->selection == m_selection)
        readOwner();
}

void X11Compositor::setRunning(bool isRunning)
{
    if (m_isRunning == isRunning)
        return;
    m_isRunning = isRunning;
    emit isRunningChanged();
}

} // namespace keyvora
