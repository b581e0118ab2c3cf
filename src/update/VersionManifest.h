// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace keyvora {

/// What the maker says about the latest version. The texts are as they came.
struct VersionManifest
{
    QString version;
    QString url; ///< where it can be downloaded
    std::optional<QString> notes;

    /// Reads a JSON object with "version", "url" and, perhaps, "notes". Nothing when it is none, when one of
    /// the first two is missing, or when any of the three is no text; notes may be null.
    [[nodiscard]] static std::optional<VersionManifest> decode(const QByteArray &json);

    friend bool operator==(const VersionManifest &, const VersionManifest &) = default;
};

} // namespace keyvora
