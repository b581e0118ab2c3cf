// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace keyvora {

/// Writes a file so that, whatever happens meanwhile, the path names either what it named before or the new
/// content as a whole. Makes missing folders. Content and name are on disk when it returns true; false leaves
/// what was there, and `reason` says why in the system's words. A crash can leave "<name>.<six letters>"
/// beside it.
[[nodiscard]] bool replaceFile(const QString &filePath, const QByteArray &content, QString *reason = nullptr);

} // namespace keyvora
