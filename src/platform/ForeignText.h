// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// Text that another program or a file gave us, made harmless to show: control characters and direction
/// overrides become spaces, white space is folded, and at most `maximumLength` UTF-16 units are kept (never
/// half a character; an ellipsis tells that something is missing).
QString displayableForeignText(const QString &text, qsizetype maximumLength);

} // namespace keyvora
