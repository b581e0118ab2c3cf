// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"

namespace keyvora {

/// A keyboard and a mouse that the test uses. Tells nothing that nobody watches.
class FakeInputMonitor : public InputMonitor
{
public:
    using InputMonitor::InputMonitor;

    [[nodiscard]] bool isAvailable() const override { return m_isAvailable; }
    void watchModifiers() override { m_watchesModifiers = m_isAvailable; }
    [[nodiscard]] QFuture<KeyModifiers> currentModifiers() override
    {
        return QtFuture::makeReadyFuture(m_isAvailable ? m_current : KeyModifiers());
    }
    void setWatchesPopupPresses(bool watches) override { m_watchesPopupPresses = m_isAvailable && watches; }

    [[nodiscard]] bool watchesModifiers() const { return m_watchesModifiers; }
    [[nodiscard]] bool watchesPopupPresses() const { return m_watchesPopupPresses; }

    /// Whether the desktop lets anybody watch, from the next call on.
    void setAvailable(bool isAvailable) { m_isAvailable = isAvailable; }

    /// What is held down, without telling anybody.
    void setCurrentModifiers(KeyModifiers modifiers) { m_current = modifiers; }

    /// The modifiers that are held down become these.
    void changeModifiers(KeyModifiers modifiers)
    {
        m_current = modifiers;
        if (m_watchesModifiers)
            emit modifiersChanged(modifiers);
    }

    void press(const PopupPress &press)
    {
        if (m_watchesPopupPresses)
            emit popupPressed(press);
    }

private:
    bool m_isAvailable = true;
    bool m_watchesModifiers = false;
    bool m_watchesPopupPresses = false;
    KeyModifiers m_current;
};

} // namespace keyvora
