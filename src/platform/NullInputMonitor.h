// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"

namespace keyvora {

/// The monitor of a desktop that lets nobody watch.
class NullInputMonitor : public InputMonitor
{
    Q_OBJECT

public:
    using InputMonitor::InputMonitor;

    [[nodiscard]] bool isAvailable() const override { return false; }
    void watchModifiers() override {}
    [[nodiscard]] QFuture<KeyModifiers> currentModifiers() override
    {
        return QtFuture::makeReadyFuture(KeyModifiers());
    }
    void setWatchesPopupPresses(bool /*watches*/) override {}
};

} // namespace keyvora
