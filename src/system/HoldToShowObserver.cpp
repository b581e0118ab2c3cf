// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/HoldToShowObserver.h"

#include "platform/Accessibility.h"
#include "platform/WhenFinished.h"

#include <QPointer>

#include <utility>

namespace keyvora {

HoldToShowObserver::HoldToShowObserver(InputMonitor &input, Accessibility &accessibility, Overlay overlay,
                                       Delay delay)
    : m_input(input)
    , m_accessibility(accessibility)
    , m_overlay(std::move(overlay))
    , m_delay(std::move(delay))
{
}

void HoldToShowObserver::start()
{
    if (std::exchange(m_isStarted, true))
        return;
    whenFinished(m_accessibility.isTrusted(), this, [this](const QFuture<bool> &isTrusted) {
        m_isStarted = resultOr(isTrusted, false);
        if (!m_isStarted)
            return;
        connect(&m_input, &InputMonitor::modifiersChanged, this, &HoldToShowObserver::handleFlagsChanged);
        m_input.watchModifiers();
    });
}

void HoldToShowObserver::handleFlagsChanged(KeyModifiers modifiers)
{
    if (modifiers != combination) {
        dismissIfNeeded();
        return;
    }
    m_delay(threshold, [self = QPointer(this), token = ++m_holdToken] {
        if (self)
            self->completeHold(token);
    });
}

void HoldToShowObserver::completeHold(quint64 token)
{
    if (token != m_holdToken)
        return;
    whenFinished(m_input.currentModifiers(), this, [this, token](const QFuture<KeyModifiers> &current) {
        // The hold may have ended while the answer was on its way.
        if (token != m_holdToken || resultOr(current, {}) != combination)
            return;
        // One that a button opened stays until a button closes it.
        if (m_overlay.isVisible())
            return;
        m_overlay.show();
        m_isShowingFromHold = true;
    });
}

void HoldToShowObserver::dismissIfNeeded()
{
    cancelHold();
    if (std::exchange(m_isShowingFromHold, false))
        m_overlay.hide();
}

} // namespace keyvora
