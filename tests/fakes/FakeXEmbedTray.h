// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QByteArray>
#include <QObject>
#include <QSet>

#include <memory>

namespace keyvora {

/// A status area that embeds windows, played over an X11 connection of its own. It takes the screen's place
/// for one at construction and leaves it at destruction; it takes note of icons but does not draw them.
class FakeXEmbedTray : public QObject
{
    Q_OBJECT

public:
    FakeXEmbedTray()
        : m_x11(X11Connection::open())
        , m_window(xcb_generate_id(m_x11->xcb()))
    {
        connect(m_x11.get(), &X11Connection::eventReceived, this, &FakeXEmbedTray::handleEvent);
        xcb_create_window(m_x11->xcb(), XCB_COPY_FROM_PARENT, m_window, m_x11->root(), 0, 0, 24, 24, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const xcb_atom_t selection =
            m_x11->atom("_NET_SYSTEM_TRAY_S" + QByteArray::number(m_x11->screenNumber()));
        xcb_set_selection_owner(m_x11->xcb(), m_window, selection, XCB_CURRENT_TIME);
        announce(selection);
    }

    /// The icons' windows that are there now.
    [[nodiscard]] qsizetype iconCount() const { return m_icons.size(); }

private:
    void announce(xcb_atom_t selection)
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = m_x11->root();
        message.type = m_x11->atom("MANAGER");
        message.data.data32[1] = selection;
        message.data.data32[2] = m_window;
        xcb_send_event(m_x11->xcb(), 0, m_x11->root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char *>(&message));
        m_x11->flush();
    }

    void handleEvent(const xcb_generic_event_t *event)
    {
        constexpr uint32_t requestDock = 0;
        const uint8_t type = typeOf(*event);
        if (type == XCB_CLIENT_MESSAGE) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
            if (message->type != m_x11->atom("_NET_SYSTEM_TRAY_OPCODE") ||
                message->data.data32[1] != requestDock)
                return;
            embed(message->data.data32[2]);
        } else if (type == XCB_DESTROY_NOTIFY) {
            m_icons.remove(reinterpret_cast<const xcb_destroy_notify_event_t *>(event)->window);
        }
    }

    void embed(xcb_window_t icon)
    {
        constexpr uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_x11->xcb(), icon, XCB_CW_EVENT_MASK, &events);
        // From this answer on, the window's end cannot be missed.
        const auto cookie = xcb_get_geometry(m_x11->xcb(), icon);
        m_x11->expectReply(cookie.sequence, [this, icon](const void *reply) {
            if (reply != nullptr)
                m_icons.insert(icon);
        });
    }

    std::unique_ptr<X11Connection> m_x11;
    xcb_window_t m_window;
    QSet<xcb_window_t> m_icons;
};

} // namespace keyvora
