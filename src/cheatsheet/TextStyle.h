// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QHashFunctions>

#include <cmath>

namespace keyvora {

/// How a text on the sheet is set.
struct TextStyle
{
    qreal size = 0; ///< points
    QFont::Weight weight = QFont::Normal;

    /// The distance of two baselines: whole points, so that what stands below stays on the grid.
    [[nodiscard]] qreal lineHeight() const { return std::ceil(1.2 * size); }

    friend bool operator==(const TextStyle &, const TextStyle &) = default;
};

inline size_t qHash(const TextStyle &style, size_t seed = 0)
{
    return qHashMulti(seed, style.size, static_cast<int>(style.weight));
}

} // namespace keyvora
