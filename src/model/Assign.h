// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace keyvora {

/// Assigns and tells whether that changed anything, so that a signal follows a real change alone.
template <typename T>
[[nodiscard]] bool assign(T &member, T value)
{
    if (member == value)
        return false;
    member = std::move(value);
    return true;
}

} // namespace keyvora
