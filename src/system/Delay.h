// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>

namespace keyvora {

/// Calls a function on the main thread once a time has passed; not at all when the program ends before.
using Delay = std::function<void(std::chrono::milliseconds time, std::function<void()> function)>;

/// The delay of the event loop, exact to the millisecond where the machine is.
Delay preciseDelay();

} // namespace keyvora
