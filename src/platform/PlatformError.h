// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// Why a desktop service refused, in the words of the system; meant to be shown to the user as it is.
struct PlatformError
{
    QString description;

    friend bool operator==(const PlatformError &, const PlatformError &) = default;
};

} // namespace keyvora
