// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringView>

namespace keyvora {

/// Whether a version comes after another one. Versions are whole numbers with points between them, of any
/// length; a number that is missing at the end counts as 0 ("1.2" is "1.2.0"), and what is no whole number
/// ("2beta") is passed over.
[[nodiscard]] bool isNewer(QStringView candidate, QStringView current);

} // namespace keyvora
