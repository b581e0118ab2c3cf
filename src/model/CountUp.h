// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <limits>

namespace keyvora {

/// Adds one to a stored counter, which may be anything; the largest number stays as it is.
inline void countUp(qint64 &counter)
{
    if (counter < std::numeric_limits<qint64>::max())
        ++counter;
}

} // namespace keyvora
