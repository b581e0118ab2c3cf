// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Activation.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uint8_t bitsOfNumbers = 32;
constexpr uint32_t directUserAction = 2; ///< the kind of source that window managers obey

/// The root window of the screen that the environment names.
xcb_window_t rootWindow(xcb_connection_t *connection)
{
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return X11Connection::rootOfScreen(connection, screen);
}

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

bool activateX11Window(const QWindow &window, xcb_timestamp_t time)
{
    const auto *application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (application == nullptr)
        return false;
    // The toolkit's own connection, so that this comes behind its request to show the window.
    xcb_connection_t *connection = application->connection();
    constexpr QLatin1StringView name("_NET_ACTIVE_WINDOW");
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const XcbOwned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, cookie, nullptr));
    if (atom == nullptr)
        return false;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = bitsOfNumbers;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = atom->atom;
    message.data.data32[0] = directUserAction;
    message.data.data32[1] = time;
    xcb_send_event(connection, 0, rootWindow(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection);
    return true;
}

} // namespace keyvora
