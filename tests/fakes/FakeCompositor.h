// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Compositor.h"

namespace keyvora {

/// A compositor that the test starts and stops.
class FakeCompositor : public Compositor
{
public:
    using Compositor::Compositor;

    [[nodiscard]] bool isRunning() const override { return m_isRunning; }

    void setRunning(bool isRunning)
    {
        if (m_isRunning == isRunning)
            return;
        m_isRunning = isRunning;
        emit isRunningChanged();
    }

private:
    bool m_isRunning = false;
};

} // namespace keyvora
