// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/Waiting.h"
#include "platform/linux/X11Connection.h"

namespace keyvora {

/// Runs the event loop until whoever listens to the connection has dealt with all that happened on the screen
/// up to now. What only then would have been told, is not going to be.
[[nodiscard]] inline bool settles(X11Connection &connection)
{
    // Answers follow the events before them, and those to earlier questions; a listener asks a few times in
    // turn.
    constexpr int turns = 6;
    for (int turn = 0; turn < turns; ++turn) {
        bool isAnswered = false;
        connection.readProperty(connection.root(), "_KEYVORA_FENCE", 4,
                                [&](const QByteArray &) { isAnswered = true; });
        if (!becomesTrue([&] { return isAnswered; }))
            return false;
    }
    return true;
}

} // namespace keyvora
