// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace keyvora {

/// How often a shortcut was asked in practice.
struct PracticeStat
{
    qint64 seen = 0;  ///< answers recorded
    qint64 wrong = 0; ///< how many of them were wrong

    friend bool operator==(const PracticeStat &, const PracticeStat &) = default;
};

/// Reads a UTF-8 JSON object from shortcut id to {"seen", "wrong"}; nothing when any part cannot be read.
std::optional<QHash<QString, PracticeStat>> decodePracticeStats(const QByteArray &json);

/// Writes what `decodePracticeStats` reads, compact.
QByteArray encodePracticeStats(const QHash<QString, PracticeStat> &stats);

} // namespace keyvora
