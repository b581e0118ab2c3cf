// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HotKeys.h"

#include <QList>

#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;
class X11Keyboard;

/// Grabs the combination on the root window. A grab holds for exactly one set of modifiers, so that there is
/// one for each state of the locks, and the combination is ours only when all of them are.
class X11HotKeys : public HotKeys
{
    Q_OBJECT

public:
    /// The connection and its keyboard outlive the hot keys, and nobody else grabs keys over it.
    X11HotKeys(X11Connection &connection, X11Keyboard &keyboard, QObject *parent = nullptr);
    ~X11HotKeys() override;

    void registerHotKey() override;
    void unregisterHotKey() override;
    [[nodiscard]] bool isRegistered() const override { return m_isRegistered; }

private:
    struct Grab
    {
        uint16_t modifiers;
        xcb_keycode_t key;

        friend bool operator==(const Grab &, const Grab &) = default;
    };

    [[nodiscard]] QList<Grab> wantedGrabs() const;
    void followMapping();
    void grab(const QList<Grab> &grabs);
    void giveBack();
    void grabAnswered(quint64 attempt, bool isDone);
    void handleEvent(const xcb_generic_event_t *event);

    X11Connection &m_connection;
    X11Keyboard &m_keyboard;
    bool m_isWanted = false;
    bool m_isRegistered = false;
    QList<Grab> m_grabs;        ///< those that were asked for
    qsizetype m_unanswered = 0; ///< how many of them the server has yet to answer
    quint64 m_attempt = 0;      ///< counts sets of grabs, so that a late answer to an earlier one is dropped
    xcb_keycode_t m_heldKey = XCB_NO_SYMBOL; ///< pressed and not yet released
};

} // namespace keyvora
