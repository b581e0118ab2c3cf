// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Compositor.h"

#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// The compositing manager of an X11 screen: whoever owns the selection that the window manager conventions
/// set aside for it. Followed live.
class X11Compositor : public Compositor
{
    Q_OBJECT

public:
    /// Not running until the server has answered. The connection outlives the compositor.
    explicit X11Compositor(X11Connection &connection, QObject *parent = nullptr);

    [[nodiscard]] bool isRunning() const override { return m_isRunning; }

private:
    void followOwner();
    void readOwner();
    void handleEvent(const xcb_generic_event_t *event);
    void setRunning(bool isRunning);

    X11Connection &m_connection;
    xcb_atom_t m_selection;
    uint8_t m_ownerEvent = 0; ///< the code of the event that tells of a new owner; 0 where nothing does
    bool m_isRunning = false;
};

} // namespace keyvora
