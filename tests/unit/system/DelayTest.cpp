// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/Delay.h"

#include "contract/Waiting.h"
#include "unit/Settle.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace std::chrono_literals;

TEST(PreciseDelay, CallsOnceAndFromTheEventLoop)
{
    int calls = 0;
    preciseDelay()(0ms, [&] { ++calls; });
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(becomesTrue([&] { return calls > 0; }));
    settle();
    EXPECT_EQ(calls, 1);
}

TEST(PreciseDelay, CallsTheShorterFirst)
{
    QList<int> calls;
    const Delay delay = preciseDelay();
    delay(20ms, [&] { calls.append(20); });
    delay(1ms, [&] { calls.append(1); });
    EXPECT_TRUE(becomesTrue([&] { return calls.size() == 2; }));
    EXPECT_EQ(calls, (QList<int>{1, 20}));
}

} // namespace keyvora
