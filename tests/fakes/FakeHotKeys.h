// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HotKeys.h"

namespace keyvora {

/// A combination that the test presses, and that another program may have.
class FakeHotKeys : public HotKeys
{
public:
    using HotKeys::HotKeys;

    void registerHotKey() override
    {
        ++m_registrations;
        m_isRegistered = !m_isTaken;
    }
    void unregisterHotKey() override { m_isRegistered = false; }
    [[nodiscard]] bool isRegistered() const override { return m_isRegistered; }

    /// How often somebody asked for the combination.
    [[nodiscard]] int registrations() const { return m_registrations; }

    /// Whether another program has the combination, from the next registration on.
    void setTaken(bool isTaken) { m_isTaken = isTaken; }

    /// Presses the combination; the program hears of it when it has it.
    void press(const QString &activationToken)
    {
        if (m_isRegistered)
            emit pressed(activationToken);
    }

private:
    bool m_isTaken = false;
    bool m_isRegistered = false;
    int m_registrations = 0;
};

} // namespace keyvora
