// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PlatformError.h"

#include <optional>

namespace keyvora {

/// Whether the desktop starts the program when the user logs in.
class LoginItem
{
public:
    virtual ~LoginItem() = default;

    /// The state that the desktop would act on at the next login, read afresh at each call.
    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Registers or unregisters the program. Nothing on success; on failure the state is as it was.
    [[nodiscard]] virtual std::optional<PlatformError> setEnabled(bool enabled) = 0;
};

} // namespace keyvora
