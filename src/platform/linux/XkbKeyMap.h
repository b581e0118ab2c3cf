// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KeyboardLayout.h"

#include <QList>

#include <optional>

namespace keyvora {

/// What stands on the keys of an X11 keyboard, in each of its layouts. In X's words those are groups, up to
/// four of them.
struct XkbKeyMap
{
    /// Which of a key's groups counts when the keyboard is in one that the key does not have.
    enum class OutOfRange : quint8 {
        Wrap,
        Clamp,
        Redirect, ///< to `Key::redirectGroup`
    };

    /// The symbols that a key gives while no modifier is held; 0 for none.
    struct Group
    {
        quint32 symbol = 0;
        quint32 symbolWithNumLock = 0;

        friend bool operator==(const Group &, const Group &) = default;
    };

    struct Key
    {
        QList<Group> groups = {};
        OutOfRange outOfRange = OutOfRange::Wrap;
        int redirectGroup = 0;

        friend bool operator==(const Key &, const Key &) = default;
    };

    quint32 firstKey = 0;   ///< the code of the first key in the list
    quint32 numLockBit = 0; ///< of the state; 0 where the keyboard has no such lock
    QList<Key> keys = {};

    /// As `KeyboardLayout::key`. The number pad gives alone what its lock makes of it.
    [[nodiscard]] std::optional<KeyboardLayout::Key> key(quint32 scanCode, quint32 symbol,
                                                         quint32 state) const;

    friend bool operator==(const XkbKeyMap &, const XkbKeyMap &) = default;
};

} // namespace keyvora
