// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace keyvora {

/// The key tokens that a person wrote: keys of one step apart by "+", steps apart by "→". White space around
/// a piece does not count, empty pieces and empty steps are left out. So neither "+" nor "→" can be written
/// as a key.
QStringList parsedKeys(const QString &text);

/// Writes key tokens the way that `parsedKeys` reads: "⌃ + ⇧ + W", "⌘ + K → ⌘ + C".
QString keysText(const QStringList &keys);

} // namespace keyvora
