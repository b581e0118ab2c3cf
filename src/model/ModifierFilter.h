// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <optional>

namespace keyvora {

/// A filter of the library: only shortcuts that hold this modifier's key token.
enum class ModifierFilter : quint8 {
    command,
    option,
    shift,
    control,
    fn,
};

/// All filters in the order of display.
inline constexpr std::array allModifierFilters{
    ModifierFilter::command, ModifierFilter::option, ModifierFilter::shift,
    ModifierFilter::control, ModifierFilter::fn,
};

/// The key token that a filter looks for.
QString rawValue(ModifierFilter filter);

/// The filter with exactly this key token, or nothing.
std::optional<ModifierFilter> modifierFilterFromRawValue(const QString &token);

} // namespace keyvora
