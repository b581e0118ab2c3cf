// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Connection.h"

#include "platform/linux/XcbData.h"

#include <QSocketNotifier>

#include <utility>
#include <xcb/xcbext.h>

namespace keyvora {

namespace {

/// A client that sends more than that is not to keep the program from everything else.
constexpr int maximumEventsAtOnce = 256;

} // namespace

std::unique_ptr<X11Connection> X11Connection::open()
{
    int screenNumber = 0;
    xcb_connection_t *connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        return nullptr;
    }
    return std::unique_ptr<X11Connection>(new X11Connection(connection, screenNumber));
}

xcb_window_t X11Connection::rootOfScreen(xcb_connection_t *connection, int screenNumber)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < screenNumber && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    return screens.data->root;
}

X11Connection::X11Connection(xcb_connection_t *connection, int screenNumber)
    : m_connection(connection)
    , m_screenNumber(screenNumber)
    , m_root(rootOfScreen(connection, screenNumber))
    , m_notifier(new QSocketNotifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &X11Connection::readAvailable);
}

X11Connection::~X11Connection()
{
    xcb_disconnect(m_connection);
}

xcb_atom_t X11Connection::atom(const QByteArray &name)
{
    const auto known = m_atoms.constFind(name);
    if (known != m_atoms.constEnd())
        return *known;
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const XcbOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    const xcb_atom_t atom = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    m_atoms.insert(name, atom);
    readLater();
    return atom;
}

const xcb_query_extension_reply_t *X11Connection::extension(xcb_extension_t &extension)
{
    const xcb_query_extension_reply_t *reply = xcb_get_extension_data(m_connection, &extension);
    readLater();
    return reply != nullptr && reply->present != 0 ? reply : nullptr;
}

void X11Connection::selectRootEvents(uint32_t mask)
{
    m_rootEvents |= mask;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &m_rootEvents);
    flush();
}

void X11Connection::readProperty(xcb_window_t window, const QByteArray &name, uint32_t maximumBytes,
                                 PropertyHandler handler)
{
    constexpr uint32_t bytesPerUnit = 4; // the protocol counts property lengths in 32-bit units
    const auto cookie = xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0,
                                         (maximumBytes + bytesPerUnit - 1) / bytesPerUnit);
    expectReply(cookie.sequence, [handler = std::move(handler)](const void *data) {
        const auto *reply = static_cast<const xcb_get_property_reply_t *>(data);
        if (reply == nullptr) {
            handler({});
            return;
        }
        handler(QByteArray(static_cast<const char *>(xcb_get_property_value(reply)),
                           xcb_get_property_value_length(reply)));
    });
}

void X11Connection::expectReply(unsigned int sequence, ReplyHandler handler)
{
    m_pendingReplies.push_back(
        {sequence, [handler = std::move(handler)](const void *reply, bool /*hasFailed*/) {
             handler(reply);
         }});
    flush();
}

void X11Connection::expectOutcome(unsigned int sequence, OutcomeHandler handler)
{
    m_pendingReplies.push_back(
        {sequence, [handler = std::move(handler)](const void * /*reply*/, bool hasFailed) {
             handler(!hasFailed);
         }});
    // Success is silent: that the server has come past the request shows in the answer to a later one.
    expectReply(xcb_get_input_focus(m_connection).sequence, [](const void * /*reply*/) {});
}

void X11Connection::finishPendingReplies()
{
    while (!m_pendingReplies.empty()) {
        xcb_generic_error_t *failure = nullptr;
        const XcbOwned<void> reply(
            xcb_wait_for_reply(m_connection, m_pendingReplies.front().sequence, &failure));
        const XcbOwned<xcb_generic_error_t> ownedFailure(failure);
        finish(reply.get(), failure != nullptr || isBroken());
    }
    readLater();
}

void X11Connection::flush()
{
    xcb_flush(m_connection);
    readLater();
}

void X11Connection::readLater()
{
    // Whatever waits for the server may take replies and events off the socket, which then no longer
    // announces them.
    if (!std::exchange(m_willRead, true))
        QMetaObject::invokeMethod(this, &X11Connection::readAvailable, Qt::QueuedConnection);
}

void X11Connection::readAvailable()
{
    m_willRead = true;
    if (isBroken()) {
        m_notifier->setEnabled(false);
        // Nobody is to wait for a server that is gone.
        while (!m_pendingReplies.empty())
            finish(nullptr, true);
        m_willRead = false;
        return;
    }
    // Reading replies queues events and the other way round, so both go on until neither finds anything.
    int remaining = maximumEventsAtOnce;
    bool hasFound = true;
    dispatchEvents(&xcb_poll_for_event, remaining);
    while (hasFound) {
        emit eventsDispatched();
        hasFound = dispatchReplies();
        hasFound = dispatchEvents(&xcb_poll_for_queued_event, remaining) || hasFound;
    }
    m_willRead = false;
    if (remaining == 0)
        readLater();
}

bool X11Connection::dispatchReplies()
{
    bool hasFound = false;
    while (!m_pendingReplies.empty()) {
        void *data = nullptr;
        xcb_generic_error_t *failure = nullptr;
        if (xcb_poll_for_reply(m_connection, m_pendingReplies.front().sequence, &data, &failure) == 0)
            break;
        const XcbOwned<void> reply(data);
        const XcbOwned<xcb_generic_error_t> ownedFailure(failure);
        hasFound = true;
        finish(reply.get(), failure != nullptr);
    }
    return hasFound;
}

void X11Connection::finish(const void *reply, bool hasFailed)
{
    const PendingReply pending = std::move(m_pendingReplies.front());
    m_pendingReplies.pop_front();
    pending.handler(reply, hasFailed);
}

bool X11Connection::isBroken() const
{
    return xcb_connection_has_error(m_connection) != 0;
}

bool X11Connection::dispatchEvents(xcb_generic_event_t *(*nextEvent)(xcb_connection_t *), int &remaining)
{
    bool hasFound = false;
    for (; remaining > 0; --remaining) {
        const XcbOwned<xcb_generic_event_t> event(nextEvent(m_connection));
        if (!event)
            break;
        hasFound = true;
        emit eventReceived(event.get());
    }
    return hasFound;
}

} // namespace keyvora
