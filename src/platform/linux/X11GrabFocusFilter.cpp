// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11GrabFocusFilter.h"

#include "platform/linux/XcbData.h"

#include <QCoreApplication>

#include <xcb/xcb.h>

namespace keyvora {

X11GrabFocusFilter::X11GrabFocusFilter()
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

// The base class takes it from the application again.
X11GrabFocusFilter::~X11GrabFocusFilter() = default;

bool X11GrabFocusFilter::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const uint8_t type = typeOf(*event);
    if (type != XCB_FOCUS_IN && type != XCB_FOCUS_OUT)
        return false;
    const uint8_t mode = reinterpret_cast<const xcb_focus_in_event_t *>(event)->mode;
    return mode == XCB_NOTIFY_MODE_GRAB || mode == XCB_NOTIFY_MODE_UNGRAB;
}

} // namespace keyvora
