// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace keyvora {

/// How many pixels of the screen a line takes that is to be that wide, in pixels: whole ones, at least one,
/// and of two that are as near the fewer, because fine lines that are drawn too thick look heavy.
[[nodiscard]] inline qreal lineWidthInPixels(qreal exact)
{
    return std::max(1.0, std::ceil(exact - 0.5));
}

} // namespace keyvora
