// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Defaults.h"

namespace keyvora {

/// Whether something happens for the first time on this account, as far as the stored flag tells.
inline bool isFirstTime(const Defaults &defaults, QLatin1StringView flag)
{
    return !defaults.boolean(flag).value_or(false);
}

/// From now on it has happened; what cannot be written happens again at the next start.
inline void rememberFirstTime(Defaults &defaults, QLatin1StringView flag)
{
    if (isFirstTime(defaults, flag))
        defaults.setBoolean(flag, true);
}

} // namespace keyvora
