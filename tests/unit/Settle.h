// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QThreadPool>

namespace keyvora {

/// Runs the event loop until nothing is left to do that is known today, so that a test can tell that
/// something does not happen.
inline void settle()
{
    // What one round does may ask for the next.
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace keyvora
