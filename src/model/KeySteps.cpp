// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeySteps.h"

#include "model/ModifierFilter.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

bool isStepSeparator(const QStringList &tokens, qsizetype index)
{
    const bool isInside = index > 0 && index < tokens.size() - 1;
    return isInside && tokens[index] == u"→"_s && !modifierFilterFromRawValue(tokens[index - 1]);
}

} // namespace keyvora
