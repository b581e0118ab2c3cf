// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/TrustController.h"

#include <utility>

namespace keyvora {

TrustController::TrustController(std::function<void()> grantTrust)
    : m_grantTrust(std::move(grantTrust))
{
}

void TrustController::ask()
{
    setAsked(true);
}

void TrustController::allow()
{
    if (!m_isAsked)
        return;
    setAsked(false);
    m_grantTrust();
}

void TrustController::decline()
{
    setAsked(false);
}

void TrustController::setAsked(bool isAsked)
{
    if (m_isAsked == isAsked)
        return;
    m_isAsked = isAsked;
    emit isAskedChanged();
}

} // namespace keyvora
