// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Activation.h"

#include "platform/linux/X11Connection.h"

#include <QGuiApplication>
#include <QWindow>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uint8_t bitsOfNumbers = 32;
constexpr uint32_t directUserAction = 2; ///< the kind of source that window managers obey

} // namespace

std::optional<xcb_timestamp_t> timeOfActivationToken(const QString &token)
{
    constexpr QLatin1StringView mark("_TIME");
    const qsizetype place = token.lastIndexOf(mark);
    if (place < 0)
        return std::nullopt;
    bool isNumber = false;
    const xcb_timestamp_t time = QStringView(token).sliced(place + mark.size()).toUInt(&isNumber);
    // Zero is how X11 says "now", which every window could.
    if (!isNumber || time == XCB_CURRENT_TIME)
        return std::nullopt;
    return time;
}

bool activateX11Window(const QWindow &window, xcb_timestamp_t time, X11Connection &x11)
{
    const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (application == nullptr)
        return false;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = bitsOfNumbers;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = x11.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = directUserAction;
    message.data.data32[1] = time;
    // The toolkit's own connection, so that this comes behind its request to show the window.
    xcb_connection_t *connection = application->connection();
    xcb_send_event(connection, 0, x11.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
    return true;
}

} // namespace keyvora
