// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// A character as a key in the notation of the catalog: the space bar is a word, the hyphen the minus sign.
/// Letters keep their case. Empty for what cannot be printed.
[[nodiscard]] QString characterToken(char32_t character);

/// One of the toolkit's keys (`Qt::Key`) in the notation of the catalog. Empty for modifiers, and for keys
/// that have neither a character nor a word there.
[[nodiscard]] QString qtKeyToken(int key);

} // namespace keyvora
