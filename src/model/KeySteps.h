// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace keyvora {

/// Whether the token at `index` is the "→" that leads to the next step of a sequence, rather than the right
/// arrow key: it follows a key that completes a step, and another step follows it.
bool isStepSeparator(const QStringList &tokens, qsizetype index);

} // namespace keyvora
