// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/AppMenu.h"

#include "model/Localization.h"

namespace keyvora {

void AppMenu::install()
{
    m_language = Localization::shared().language();
    emit installed();
}

} // namespace keyvora
