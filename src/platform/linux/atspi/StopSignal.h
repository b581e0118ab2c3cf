// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>

namespace keyvora {

/// Tells work on other threads to end, also work that waits for a file descriptor. Once told, it stays told.
class StopSignal
{
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal &) = delete;
    StopSignal &operator=(const StopSignal &) = delete;

    void stop();
    [[nodiscard]] bool isStopped() const { return m_isStopped; }
    /// Becomes readable with `stop`; -1 where the system has no descriptor left.
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    std::atomic<bool> m_isStopped = false;
    int m_descriptor;
};

} // namespace keyvora
