// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>

#include <deque>
#include <functional>
#include <memory>
#include <xcb/xcb.h>

class QSocketNotifier;

namespace keyvora {

/// Our own connection to the X server, beside the toolkit's, so that root-window events, grabs and errors are
/// ours alone. Replies arrive by callback, events by signal, both from the event loop; what waits for the
/// server says so. A server that goes away ends the events silently, and every request has failed; the
/// toolkit's own connection, where it is to the same server, ends the program.
class X11Connection : public QObject
{
    Q_OBJECT

public:
    /// Receives the property's bytes; empty when the window or the property does not exist.
    using PropertyHandler = std::function<void(const QByteArray &value)>;
    /// Receives a reply or, when the request failed, null. The reply is freed after the call.
    using ReplyHandler = std::function<void(const void *reply)>;
    /// Receives whether the server did what it was asked for.
    using OutcomeHandler = std::function<void(bool isDone)>;

    /// Connects to the display of the environment; null where there is none.
    static std::unique_ptr<X11Connection> open();
    ~X11Connection() override;

    /// The root window of one of a connection's screens, or of the last where there are fewer.
    static xcb_window_t rootOfScreen(xcb_connection_t *connection, int screenNumber);

    [[nodiscard]] xcb_connection_t *xcb() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }

    /// The atom of this name. Asks the server once per name, in one round trip.
    xcb_atom_t atom(const QByteArray &name);

    /// What the server says about an extension; null where it has none of the kind. Asks once per extension,
    /// in one round trip.
    const xcb_query_extension_reply_t *extension(xcb_extension_t &extension);

    /// Adds to the core events that this connection receives for the root window (`XCB_EVENT_MASK_…`).
    void selectRootEvents(uint32_t mask);

    /// Reads at most `maximumBytes` of a property of any type. The handler is dropped with the connection.
    void readProperty(xcb_window_t window, const QByteArray &name, uint32_t maximumBytes,
                      PropertyHandler handler);

    /// Calls the handler once the reply to the request with this sequence number is there.
    void expectReply(unsigned int sequence, ReplyHandler handler);

    /// Calls the handler once it is known what became of a request that has no reply and that was made by a
    /// `…_checked` function.
    void expectOutcome(unsigned int sequence, OutcomeHandler handler);

    /// Waits for every outstanding reply, and those that their handlers ask for. For start-up only.
    void finishPendingReplies();

    /// Sends what is buffered; called by the functions above where needed.
    void flush();

signals:
    /// One event as it came; valid during the call only.
    void eventReceived(const xcb_generic_event_t *event);
    /// All events of this turn were told: what they changed can be asked for once, however many there were.
    void eventsDispatched();

private:
    struct PendingReply
    {
        unsigned int sequence;
        std::function<void(const void *reply, bool hasFailed)> handler;
    };

    X11Connection(xcb_connection_t *connection, int screenNumber);
    void finish(const void *reply, bool hasFailed);
    [[nodiscard]] bool isBroken() const;
    void readLater();
    void readAvailable();
    // Both tell whether there was anything.
    bool dispatchReplies();
    bool dispatchEvents(xcb_generic_event_t *(*nextEvent)(xcb_connection_t *), int &remaining);

    xcb_connection_t *m_connection;
    int m_screenNumber;
    xcb_window_t m_root;
    uint32_t m_rootEvents = XCB_EVENT_MASK_NO_EVENT;
    QHash<QByteArray, xcb_atom_t> m_atoms;
    std::deque<PendingReply> m_pendingReplies;
    QSocketNotifier *m_notifier;
    bool m_willRead = false; ///< the event loop is going to read, or does so just now
};

} // namespace keyvora
