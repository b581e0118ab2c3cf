// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

#include <array>

namespace keyvora {

/// The formats of a cheat sheet.
enum class CheatSheetSize : quint8 {
    wallet,   ///< a card with a handful of essentials
    a4,       ///< as wide as A4
    usLetter, ///< as wide as US Letter
};

/// All formats in the order of display.
inline constexpr std::array allCheatSheetSizes{
    CheatSheetSize::wallet,
    CheatSheetSize::a4,
    CheatSheetSize::usLetter,
};

/// The format's name in file names; independent of the interface language.
QString rawValue(CheatSheetSize size);

/// The format's name in the current interface language.
QString label(CheatSheetSize size);

/// One sentence in the current interface language on what the format is for.
QString detail(CheatSheetSize size);

/// The format's paper, in points. A card fills it exactly; a sheet has its width, and the height that its
/// content needs.
QSize paperSize(CheatSheetSize size);

} // namespace keyvora
