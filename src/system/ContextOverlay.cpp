// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/ContextOverlay.h"

#include "system/UserInterfaceLoader.h"

namespace keyvora {

ContextOverlay::ContextOverlay(UserInterfaceLoader &userInterface)
    : m_userInterface(userInterface)
{
}

bool ContextOverlay::isVisible() const
{
    const UserInterface *userInterface = m_userInterface.loaded();
    return userInterface != nullptr && userInterface->isOverlayVisible();
}

void ContextOverlay::show()
{
    if (UserInterface *userInterface = m_userInterface.get())
        userInterface->showOverlay();
}

void ContextOverlay::hide()
{
    if (!isVisible())
        return;
    m_userInterface.loaded()->hideOverlay();
    emit hidden();
}

void ContextOverlay::toggle()
{
    if (isVisible())
        hide();
    else
        show();
}

} // namespace keyvora
