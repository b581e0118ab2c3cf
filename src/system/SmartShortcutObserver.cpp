// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/SmartShortcutObserver.h"

#include "platform/Accessibility.h"
#include "platform/WhenFinished.h"

#include <utility>

namespace keyvora {

namespace {

/// Presses beyond are dropped: the application is stuck, and nobody clicks that fast on purpose.
constexpr int maximumLookups = 8;

} // namespace

SmartShortcutObserver::SmartShortcutObserver(InputMonitor &input, Accessibility &accessibility,
                                             MenuActionHandler onMenuAction)
    : m_input(input)
    , m_accessibility(accessibility)
    , m_onMenuAction(std::move(onMenuAction))
{
    connect(&m_input, &InputMonitor::popupPressed, this, &SmartShortcutObserver::handlePress);
}

SmartShortcutObserver::~SmartShortcutObserver()
{
    SmartShortcutObserver::stop();
}

void SmartShortcutObserver::start()
{
    if (m_state != State::Stopped)
        return;
    m_state = State::CheckingTrust;
    whenFinished(m_accessibility.isTrusted(), this, [this, run = ++m_run](const QFuture<bool> &isTrusted) {
        if (run != m_run)
            return;
        if (!resultOr(isTrusted, false)) {
            m_state = State::Stopped;
            return;
        }
        m_state = State::Watching;
        m_input.setWatchesPopupPresses(true);
    });
}

void SmartShortcutObserver::stop()
{
    ++m_run;
    if (std::exchange(m_state, State::Stopped) == State::Watching)
        m_input.setWatchesPopupPresses(false);
}

void SmartShortcutObserver::handlePress(const PopupPress &press)
{
    if (m_state != State::Watching || m_lookups >= maximumLookups)
        return;
    ++m_lookups;
    whenFinished(m_accessibility.menuItemTitleAt(press.pid, press.position), this,
                 [this, run = m_run](const QFuture<QString> &answer) {
                     --m_lookups;
                     const QString title = resultOr(answer, QString());
                     if (run == m_run && !title.isEmpty())
                         m_onMenuAction(title);
                 });
}

} // namespace keyvora
