// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/OverlayController.h"

#include <utility>

namespace keyvora {

OverlayController::OverlayController(std::function<void()> toggleOverlay,
                                     std::function<void()> showMainWindow)
    : m_toggleOverlay(std::move(toggleOverlay))
    , m_showMainWindow(std::move(showMainWindow))
{
}

void OverlayController::toggle()
{
    m_toggleOverlay();
}

void OverlayController::openLibrary()
{
    m_toggleOverlay();
    m_showMainWindow();
}

} // namespace keyvora
