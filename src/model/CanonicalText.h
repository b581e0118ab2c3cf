// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// Whether two texts are the same by Unicode canonical equivalence: "ř" as one code point equals "r" with a
/// combining caron. Case matters.
bool canonicallyEqual(const QString &left, const QString &right);

/// A hash that agrees with `canonicallyEqual`.
size_t canonicalHash(const QString &text, size_t seed);

} // namespace keyvora
