// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

class QIODevice;

namespace keyvora {

/// What the user made: the shortcuts of their own and the ids of their favourites.
struct Backup
{
    QList<Shortcut> customShortcuts;
    QStringList favorites; ///< may name shortcuts that do not exist

    friend bool operator==(const Backup &, const Backup &) = default;
};

/// The bounds of a backup. Imports may fill half of them, so that a backup can also hold
/// what the user adds; all of it stays well below what the defaults store may hold.
namespace BackupLimits {

/// The largest file that is read.
inline constexpr qint64 fileBytes = 128LL * 1024 * 1024;
/// How many objects and arrays may stand within each other, unknown ones included.
inline constexpr int nesting = 1024;
/// The texts that are kept, all together, in UTF-8 and as they are escaped in JSON.
inline constexpr qint64 textBytes = 4LL * 1024 * 1024;
/// How many texts are kept: four of each shortcut, its keys and applications, and the favourites.
inline constexpr qint64 textCount = 200'000;

} // namespace BackupLimits

/// Counts texts against the bounds of a backup.
class BackupAllowance
{
public:
    BackupAllowance() = default;
    /// Of what imports may fill.
    static BackupAllowance ofImports();

    /// False when the text does not fit any more; what was refused is counted all the same.
    [[nodiscard]] bool take(QStringView text);
    /// All texts of the shortcut, up to the first that does not fit.
    [[nodiscard]] bool take(const Shortcut &shortcut);
    /// All texts of the backup, up to the first that does not fit.
    [[nodiscard]] bool take(const Backup &backup);

private:
    [[nodiscard]] bool take(const QStringList &texts);

    qint64 m_textBytes = 0;
    qint64 m_textCount = 0;
};

/// UTF-8 JSON object of the two lists, compact; `decodeBackup` reads it. Halves of surrogate pairs, which no
/// UTF-8 can say, become U+FFFD. Empty when the backup is beyond the bounds.
QByteArray encodeBackup(const Backup &backup);

/// Reads a backup. Nothing when a bound is passed, when the bytes are not one JSON object in UTF-8 (a byte
/// order mark may precede it), when a list is missing or no list, or when any one shortcut or favourite
/// cannot be read. Unknown fields are ignored. Of fields that are repeated the last one counts.
///
/// Memory grows with what is kept alone, not with what is skipped: less than 100 MiB, whatever comes. Any
/// thread.
std::optional<Backup> decodeBackup(const QByteArray &json);

/// Reads an open device piece by piece to its end, which it must have; nothing when reading fails, too.
std::optional<Backup> decodeBackup(QIODevice &device);

} // namespace keyvora
