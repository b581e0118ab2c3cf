// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Defaults.h"

namespace keyvora {

/// Whether something happens for the first time on this account; from then on the stored flag says that it
/// has.
inline bool isFirstTime(Defaults &defaults, QLatin1StringView flag)
{
    if (defaults.boolean(flag).value_or(false))
        return false;
    defaults.setBoolean(flag, true);
    return true;
}

} // namespace keyvora
