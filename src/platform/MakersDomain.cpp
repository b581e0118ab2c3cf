// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/MakersDomain.h"

namespace keyvora {

QString makersDomain()
{
    return QStringLiteral(KEYVORA_DOMAIN);
}

} // namespace keyvora
