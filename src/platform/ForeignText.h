// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// Text that another program or a file gave us, made harmless to show: control characters and direction
/// overrides become spaces, white space around it goes, and at most `maximumLength` UTF-16 units are kept
/// (never half a character; an ellipsis tells that something is missing). Otherwise it stays as it is.
QString harmlessForeignText(const QString &text, qsizetype maximumLength);

/// The same for a name that stands in one line: white space inside is folded, too.
QString displayableForeignText(const QString &text, qsizetype maximumLength);

} // namespace keyvora
