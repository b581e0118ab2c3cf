// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonValue>

#include <optional>

namespace keyvora {

/// The value as a 64-bit integer; nothing for anything else, fractions and larger numbers included.
inline std::optional<qint64> jsonInteger(const QJsonValue &value)
{
    // The two fallbacks come back only when the value is no such integer.
    const qint64 number = value.toInteger(0);
    if (number != value.toInteger(1))
        return std::nullopt;
    return number;
}

} // namespace keyvora
