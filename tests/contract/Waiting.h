// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <functional>

namespace keyvora {

/// Runs the event loop until the condition holds; false when it does not in a time that is long for anything.
[[nodiscard]] inline bool becomesTrue(const std::function<bool()> &condition)
{
    constexpr int patienceMs = 20'000;
    return QTest::qWaitFor(condition, patienceMs);
}

} // namespace keyvora
