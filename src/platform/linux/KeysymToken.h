// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// A symbol of X (a keysym) as a key in the notation of the catalog. Letters keep their case. What stands on
/// the number pad counts as the same key. Empty for modifiers and locks, and for keys that have neither a
/// character nor a word.
[[nodiscard]] QString keysymToken(quint32 keysym);

/// The sign of an accent that waits for its letter (a dead key); empty for other symbols.
[[nodiscard]] QString accentToken(quint32 keysym);

} // namespace keyvora
