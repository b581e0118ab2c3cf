// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Backup.h"

#include <QString>

#include <optional>

namespace keyvora {

/// Reads a backup from a regular file; nothing from anything else, and when the file cannot be opened, read
/// or decoded. Takes as long as the disk does. Any thread.
std::optional<Backup> readBackupFile(const QString &path);

/// Replaces the file by the backup, or leaves what was there: when it cannot be written, or the backup is
/// beyond the bounds. Takes as long as the disk does. Any thread.
[[nodiscard]] bool writeBackupFile(const QString &path, const Backup &backup);

} // namespace keyvora
