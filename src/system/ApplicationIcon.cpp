// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/ApplicationIcon.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QIcon applicationIcon()
{
    return QIcon(u":/keyvora/app.keyvora.Keyvora.svg"_s);
}

} // namespace keyvora
