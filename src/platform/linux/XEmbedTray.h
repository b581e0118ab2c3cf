// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>
#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// Tells whether a status area that embeds the windows of icons runs on the screen.
class XEmbedTray : public QObject
{
    Q_OBJECT

public:
    /// The connection must outlive the object.
    explicit XEmbedTray(X11Connection &connection, QObject *parent = nullptr);

    /// No value until the X server has answered for the first time.
    [[nodiscard]] std::optional<bool> isPresent() const { return m_isPresent; }

signals:
    void isPresentChanged();

private:
    void handleEvent(const xcb_generic_event_t *event);
    void askForOwner();
    void ownerAnswered(xcb_window_t owner);
    void setPresent(bool isPresent);

    X11Connection &m_connection;
    xcb_atom_t m_selection;
    xcb_atom_t m_managerMessage;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    std::optional<bool> m_isPresent;
};

} // namespace keyvora
