// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace keyvora {

/// Writes a file so that, whatever happens meanwhile, the path names either what it named before or the new
/// content as a whole. Makes missing folders; writes through a link. Content and name are on disk when it
/// returns true; false leaves what was there, and `reason` says why in the system's words. A crash can leave
/// "<name>.part-<six letters>" beside it. Any thread.
[[nodiscard]] bool replaceFile(const QString &filePath, const QByteArray &content, QString *reason = nullptr);

/// Removes what crashes while that file was replaced have left beside it. Whoever is just replacing it fails.
void removeLeftovers(const QString &filePath);

} // namespace keyvora
