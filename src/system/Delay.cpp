// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/Delay.h"

#include <QTimer>

#include <utility>

namespace keyvora {

Delay preciseDelay()
{
    return [](std::chrono::milliseconds time, std::function<void()> function) {
        QTimer::singleShot(time, Qt::PreciseTimer, std::move(function));
    };
}

} // namespace keyvora
