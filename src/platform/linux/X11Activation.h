// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>
#include <xcb/xcb.h>

class QWindow;

namespace keyvora {

class X11Connection;

/// The server's time, in milliseconds, of what the user did to get a token; nothing when the token tells
/// none. https://specifications.freedesktop.org/startup-notification-spec/latest/
[[nodiscard]] std::optional<xcb_timestamp_t> timeOfActivationToken(const QString &token);

/// Asks the window manager to give the focus to a window that is shown, because the user wanted it at that
/// time. The connection is to the same screen. Returns whether there is anybody to ask: false where the
/// toolkit does not draw on X11.
bool activateX11Window(const QWindow &window, xcb_timestamp_t time, X11Connection &x11);

} // namespace keyvora
