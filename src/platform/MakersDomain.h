// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// The maker's web domain, as whoever packages the program has set it.
QString makersDomain();

} // namespace keyvora
