// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/MenuImportError.h"

#include "model/Localization.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString errorDescription(MenuImportError error)
{
    const Localization &localization = Localization::shared();
    switch (error) {
    case MenuImportError::permission:
        return localization.text(u"Pro import povolte Keyvora Zpřístupnění v Nastavení systému."_s,
                                 u"To import, allow Keyvora Accessibility access in System Settings."_s);
    case MenuImportError::application:
        return localization.text(
            u"Aktivní aplikaci se nepodařilo načíst. Přepněte do ní a zkuste import znovu."_s,
            u"Couldn't read the active app. Switch to it and try importing again."_s);
    case MenuImportError::menu:
        return localization.text(u"Menu aktivní aplikace není dostupné nebo neobsahuje zkratky."_s,
                                 u"The active app's menu is unavailable or contains no shortcuts."_s);
    }
    Q_UNREACHABLE();
}

} // namespace keyvora
