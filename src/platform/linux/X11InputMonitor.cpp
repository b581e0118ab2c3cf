// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11InputMonitor.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/XcbXkb.h"

#include <QCoreApplication>
#include <QPointer>
#include <QPromise>

#include <memory>
#include <utility>
#include <xcb/res.h>
#include <xcb/xinput.h>

namespace keyvora {

namespace {

/// The process in the answer to who owns a window; 0 where it does not tell.
qint32 processOf(const xcb_res_query_client_ids_reply_t &reply)
{
    auto ids = xcb_res_query_client_ids_ids_iterator(&reply);
    for (; ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
        if ((ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) == 0 ||
            xcb_res_client_id_value_value_length(ids.data) < 1)
            continue;
        const uint32_t pid = *xcb_res_client_id_value_value(ids.data);
        if (std::in_range<qint32>(pid))
            return static_cast<qint32>(pid);
    }
    return 0;
}

/// Whether keys are held, apart from a lock that is on.
bool isHold(KeyModifiers modifiers)
{
    modifiers.setFlag(KeyModifier::CapsLock, false);
    return modifiers != KeyModifiers();
}

} // namespace

X11InputMonitor::X11InputMonitor(X11Connection &connection, X11Keyboard &keyboard, OwnFocus hasOwnFocus,
                                 QObject *parent)
    : InputMonitor(parent)
    , m_connection(connection)
    , m_hasOwnFocus(std::move(hasOwnFocus))
    , m_keyboard(keyboard)
{
    connect(&m_connection, &X11Connection::eventReceived, this, &X11InputMonitor::handleEvent);
    askForButtons();
    m_connection.finishPendingReplies();
}

void X11InputMonitor::askForButtons()
{
    if (m_connection.extension(xcb_input_id) == nullptr || m_connection.extension(xcb_res_id) == nullptr)
        return;
    // Before 2.1, a grab hides the raw events from everybody else, and an open menu is a grab.
    const auto input = xcb_input_xi_query_version(m_connection.xcb(), 2, 2);
    m_connection.expectReply(input.sequence, [self = QPointer(this)](const void *data) {
        const auto *reply = static_cast<const xcb_input_xi_query_version_reply_t *>(data);
        if (self && reply != nullptr)
            self->m_hasRawEvents =
                std::pair(reply->major_version, reply->minor_version) >= std::pair<uint16_t, uint16_t>(2, 1);
    });
    const auto resources = xcb_res_query_version(m_connection.xcb(), 1, 2);
    m_connection.expectReply(resources.sequence, [self = QPointer(this)](const void *data) {
        const auto *reply = static_cast<const xcb_res_query_version_reply_t *>(data);
        if (self && reply != nullptr)
            self->m_hasClientIds =
                std::pair(reply->server_major, reply->server_minor) >= std::pair<uint16_t, uint16_t>(1, 2);
    });
}

bool X11InputMonitor::isAvailable() const
{
    return m_keyboard.hasExtension() && m_hasRawEvents && m_hasClientIds;
}

void X11InputMonitor::watchModifiers()
{
    if (m_watchesModifiers || !isAvailable())
        return;
    m_watchesModifiers = true;
    const auto cookie = xcb_xkb_get_state(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this)](const void *data) {
        const auto *reply = static_cast<const xcb_xkb_get_state_reply_t *>(data);
        if (self && reply != nullptr && !self->m_latest) {
            self->m_told = self->modifiers(reply->baseMods, reply->lockedMods);
            self->m_latest = self->m_told;
        }
    });
    xcb_xkb_select_events_details_t details{};
    details.affectState = XCB_XKB_STATE_PART_MODIFIER_BASE | XCB_XKB_STATE_PART_MODIFIER_LOCK;
    details.stateDetails = details.affectState;
    xcb_xkb_select_events_aux(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0,
                              0, 0, 0, &details);
    m_connection.flush();
}

QFuture<KeyModifiers> X11InputMonitor::currentModifiers()
{
    if (!isAvailable())
        return QtFuture::makeReadyFuture(KeyModifiers());
    const auto promise = std::make_shared<QPromise<KeyModifiers>>();
    promise->start();
    const auto cookie = xcb_xkb_get_state(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this), promise](const void *data) {
        const auto *reply = static_cast<const xcb_xkb_get_state_reply_t *>(data);
        promise->addResult(self && reply != nullptr ? self->modifiers(reply->baseMods, reply->lockedMods)
                                                    : KeyModifiers());
        promise->finish();
    });
    return promise->future();
}

void X11InputMonitor::setWatchesPopupPresses(bool watches)
{
    if (watches == m_watchesPresses || !isAvailable())
        return;
    m_watchesPresses = watches;
    struct
    {
        xcb_input_event_mask_t head;
        uint32_t events;
    } const mask{
        .head = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
        .events = watches ? uint32_t{XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS} : 0U,
    };
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &mask.head);
    m_connection.flush();
}

void X11InputMonitor::handleEvent(const xcb_generic_event_t *event)
{
    if (event->response_type == XCB_GE_GENERIC) {
        const auto *generic = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
        const xcb_query_extension_reply_t *input = m_connection.extension(xcb_input_id);
        if (input != nullptr && generic->extension == input->major_opcode &&
            generic->event_type == XCB_INPUT_RAW_BUTTON_PRESS)
            handleButton(event);
        return;
    }
    const xcb_query_extension_reply_t *keyboard = m_connection.extension(xcb_xkb_id);
    // The extension's events have one type and, in the place that others use for details, their kind.
    if (keyboard != nullptr && event->response_type == keyboard->first_event &&
        event->pad0 == XCB_XKB_STATE_NOTIFY)
        handleState(event);
}

void X11InputMonitor::handleState(const xcb_generic_event_t *event)
{
    const auto *state = reinterpret_cast<const xcb_xkb_state_notify_event_t *>(event);
    const KeyModifiers now = modifiers(state->baseMods, state->lockedMods);
    const KeyModifiers before = m_latest.value_or(KeyModifiers());
    if (!m_watchesModifiers || now == before)
        return;
    m_latest = now;
    const bool endsToldHold = isHold(m_told) && !isHold(now);
    if (m_hasOwnFocus() && !endsToldHold)
        return;
    m_told = now;
    emit modifiersChanged(now);
}

void X11InputMonitor::handleButton(const xcb_generic_event_t *event)
{
    const auto *press = reinterpret_cast<const xcb_input_raw_button_press_event_t *>(event);
    if (!m_watchesPresses || press->detail != XCB_BUTTON_INDEX_1)
        return;
    // A raw event tells no position; the pointer cannot have moved far.
    const auto cookie = xcb_query_pointer(m_connection.xcb(), m_connection.root());
    m_connection.expectReply(cookie.sequence, [self = QPointer(this)](const void *data) {
        const auto *pointer = static_cast<const xcb_query_pointer_reply_t *>(data);
        if (self && pointer != nullptr)
            self->pointerFound({pointer->root_x, pointer->root_y}, pointer->child);
    });
}

void X11InputMonitor::pointerFound(QPoint position, xcb_window_t window)
{
    if (window == XCB_WINDOW_NONE)
        return;
    const auto cookie = xcb_get_window_attributes(m_connection.xcb(), window);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this), position, window](const void *data) {
        const auto *attributes = static_cast<const xcb_get_window_attributes_reply_t *>(data);
        if (self && attributes != nullptr && attributes->override_redirect != 0)
            self->popupFound(position, window);
    });
}

void X11InputMonitor::popupFound(QPoint position, xcb_window_t popup)
{
    const xcb_res_client_id_spec_t owner{.client = popup, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(m_connection.xcb(), 1, &owner);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this), position](const void *data) {
        const auto *reply = static_cast<const xcb_res_query_client_ids_reply_t *>(data);
        if (self && reply != nullptr)
            self->ownerFound(position, processOf(*reply));
    });
}

void X11InputMonitor::ownerFound(QPoint position, qint32 pid)
{
    if (m_watchesPresses && pid > 0 && pid != QCoreApplication::applicationPid())
        emit popupPressed({.position = position, .pid = pid});
}

KeyModifiers X11InputMonitor::modifiers(uint8_t held, uint8_t locked) const
{
    const X11Keyboard::Mapping mapping = m_keyboard.mapping().value_or(X11Keyboard::Mapping());
    const struct
    {
        unsigned int bits;
        KeyModifier modifier;
    } meanings[] = {
        {XCB_MOD_MASK_SHIFT, KeyModifier::Shift},     {XCB_MOD_MASK_LOCK, KeyModifier::CapsLock},
        {XCB_MOD_MASK_CONTROL, KeyModifier::Control}, {mapping.alt, KeyModifier::Option},
        {mapping.super, KeyModifier::Command},
    };
    KeyModifiers result;
    unsigned int remaining =
        (held | (locked & XCB_MOD_MASK_LOCK)) & ~static_cast<unsigned int>(mapping.numLock);
    for (const auto &[bits, modifier] : meanings) {
        result.setFlag(modifier, (remaining & bits) != 0);
        remaining &= ~bits;
    }
    result.setFlag(KeyModifier::Other, remaining != 0);
    return result;
}

} // namespace keyvora
