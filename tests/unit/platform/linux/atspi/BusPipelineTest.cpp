// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/BusPipeline.h"

#include "platform/linux/atspi/StopSignal.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(BusPipeline, GoesToNoBusThatIsAProgramOrFarAway)
{
    const StopSignal stop;
    for (const char *address : {"unixexec:path=/bin/true", "tcp:host=127.0.0.1,port=9",
                                "unix:path=/nowhere/bus;unixexec:path=/bin/true", "x-machine-unix:pid=1"})
        EXPECT_EQ(BusPipeline::toAddress(address, stop), nullptr) << address;
}

} // namespace keyvora
