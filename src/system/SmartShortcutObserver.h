// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/MenuUseObserver.h"
#include "platform/InputMonitor.h"

#include <QObject>

namespace keyvora {

class Accessibility;

/// Sees which menu items are pressed with the mouse, and tells their titles. Each press is looked up by
/// itself; answers count in the order in which they come.
class SmartShortcutObserver : public QObject, public MenuUseObserver
{
public:
    /// The input monitor and the accessibility outlive the observer.
    SmartShortcutObserver(InputMonitor &input, Accessibility &accessibility, MenuActionHandler onMenuAction);
    ~SmartShortcutObserver() override;

    /// Without trust, everything stays as it was until the next call.
    void start() override;
    /// Nothing is told any more, not even what was pressed before.
    void stop() override;

private:
    enum class State : quint8 { Stopped, CheckingTrust, Watching };

    void handlePress(const PopupPress &press);

    InputMonitor &m_input;
    Accessibility &m_accessibility;
    MenuActionHandler m_onMenuAction;
    State m_state = State::Stopped;
    int m_lookups = 0; ///< under way
    quint64 m_run = 0; ///< changes at each start and stop: answers to an earlier one come too late
};

} // namespace keyvora
