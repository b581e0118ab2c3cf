// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11HotKeys.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/XcbXkb.h"

#include <QPointer>

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

X11HotKeys::X11HotKeys(X11Connection &connection, X11Keyboard &keyboard, QObject *parent)
    : HotKeys(parent)
    , m_connection(connection)
    , m_keyboard(keyboard)
{
    connect(&m_connection, &X11Connection::eventReceived, this, &X11HotKeys::handleEvent);
    connect(&m_keyboard, &X11Keyboard::mappingChanged, this, &X11HotKeys::followMapping);
    if (m_connection.extension(xcb_xkb_id) == nullptr)
        return;
    // A key that repeats is then not said to be released in between.
    const auto cookie = xcb_xkb_per_client_flags(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD,
                                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0);
    m_connection.expectReply(cookie.sequence, [](const void * /*reply*/) {});
}

X11HotKeys::~X11HotKeys()
{
    giveBack();
}

void X11HotKeys::registerHotKey()
{
    m_isWanted = true;
    followMapping();
}

void X11HotKeys::unregisterHotKey()
{
    m_isWanted = false;
    m_heldKey = XCB_NO_SYMBOL;
    giveBack();
}

QList<X11HotKeys::Grab> X11HotKeys::wantedGrabs() const
{
    const X11Keyboard::Mapping mapping = m_keyboard.mapping().value_or(X11Keyboard::Mapping());
    const unsigned int altBits = mapping.alt != 0 ? unsigned{mapping.alt} : unsigned{XCB_MOD_MASK_1};
    const unsigned int numLock = mapping.numLock;
    QList<unsigned int> lockStates{0, XCB_MOD_MASK_LOCK};
    if (numLock != 0)
        lockStates += {numLock, XCB_MOD_MASK_LOCK | numLock};
    QList<Grab> grabs;
    for (const xcb_keycode_t key : mapping.spaceKeys) {
        for (const unsigned int locks : lockStates) {
            // Each Alt key may have a bit of its own.
            for (unsigned int rest = altBits; rest != 0; rest &= rest - 1) {
                const unsigned int alt = rest & -rest;
                grabs.append(
                    {.modifiers = static_cast<uint16_t>(XCB_MOD_MASK_CONTROL | alt | locks), .key = key});
            }
        }
    }
    return grabs;
}

void X11HotKeys::followMapping()
{
    if (!m_isWanted)
        return;
    const QList<Grab> grabs = wantedGrabs();
    if (grabs == m_grabs)
        return;
    giveBack();
    grab(grabs);
}

void X11HotKeys::grab(const QList<Grab> &grabs)
{
    m_grabs = grabs;
    m_unanswered = grabs.size();
    for (const auto &[modifiers, key] : grabs) {
        const auto cookie = xcb_grab_key_checked(m_connection.xcb(), 0, m_connection.root(), modifiers, key,
                                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        m_connection.expectOutcome(cookie.sequence,
                                   [self = QPointer(this), attempt = m_attempt](bool isDone) {
                                       if (self)
                                           self->grabAnswered(attempt, isDone);
                                   });
    }
}

void X11HotKeys::giveBack()
{
    // What another program has stays with it.
    for (const auto &[modifiers, key] : std::exchange(m_grabs, {}))
        xcb_ungrab_key(m_connection.xcb(), key, m_connection.root(), modifiers);
    m_connection.flush();
    ++m_attempt;
    m_isRegistered = false;
}

void X11HotKeys::grabAnswered(quint64 attempt, bool isDone)
{
    if (attempt != m_attempt)
        return;
    if (!isDone)
        unregisterHotKey();
    else if (--m_unanswered == 0)
        m_isRegistered = true;
}

void X11HotKeys::handleEvent(const xcb_generic_event_t *event)
{
    if (event->response_type != XCB_KEY_PRESS && event->response_type != XCB_KEY_RELEASE)
        return;
    const auto *key = reinterpret_cast<const xcb_key_press_event_t *>(event);
    if (event->response_type == XCB_KEY_RELEASE) {
        if (key->detail == m_heldKey)
            m_heldKey = XCB_NO_SYMBOL;
        return;
    }
    // As long as the combination is held, the other keys are told, too.
    const bool isOurs = m_isRegistered && m_keyboard.mapping()->spaceKeys.contains(key->detail);
    if (isOurs && std::exchange(m_heldKey, key->detail) != key->detail)
        emit pressed(u"keyvora_TIME%1"_s.arg(key->time));
}

} // namespace keyvora
