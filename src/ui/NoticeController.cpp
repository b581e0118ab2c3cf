// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/NoticeController.h"

#include "model/AppModel.h"

#include <utility>

namespace keyvora {

NoticeController::NoticeController(AppModel &model, std::function<void()> showMainWindow)
    : m_model(model)
    , m_showMainWindow(std::move(showMainWindow))
{
}

void NoticeController::present()
{
    emit presented();
}

void NoticeController::openShortcut()
{
    emit dismissed();
    m_showMainWindow();
    m_model.revealShortcut(m_model.suggestionId());
}

void NoticeController::dismiss()
{
    emit dismissed();
}

} // namespace keyvora
