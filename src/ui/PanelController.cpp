// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelController.h"

#include <utility>

namespace keyvora {

PanelController::PanelController(std::function<void()> toggleOverlay, std::function<void()> showMainWindow,
                                 std::function<void()> quit)
    : m_toggleOverlay(std::move(toggleOverlay))
    , m_showMainWindow(std::move(showMainWindow))
    , m_quit(std::move(quit))
{
}

void PanelController::present()
{
    emit presented();
}

void PanelController::toggleOverlay()
{
    m_toggleOverlay();
}

void PanelController::openLibrary()
{
    emit dismissed();
    m_showMainWindow();
}

void PanelController::quit()
{
    m_quit();
}

void PanelController::dismiss()
{
    emit dismissed();
}

} // namespace keyvora
