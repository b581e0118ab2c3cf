// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/LaunchPolicy.h"

#include <gtest/gtest.h>

namespace keyvora {

using Host = StatusItem::Host;

namespace {

constexpr Host allHosts[] = {Host::Unknown, Host::None, Host::StatusNotifier, Host::XEmbed};

} // namespace

TEST(LaunchPolicy, OpensTheWindowAtTheVeryFirstStart)
{
    for (const Host host : allHosts) {
        for (const bool isByHand : {false, true})
            EXPECT_TRUE(opensMainWindow({.isFirstEver = true, .isByHand = isByHand}, host))
                << static_cast<int>(host) << ' ' << isByHand;
    }
}

TEST(LaunchPolicy, OpensNoWindowAtLogin)
{
    for (const Host host : allHosts)
        EXPECT_FALSE(opensMainWindow({.isFirstEver = false, .isByHand = false}, host))
            << static_cast<int>(host);
}

TEST(LaunchPolicy, OpensTheWindowForAPersonWhomNoIconWouldTell)
{
    for (const Host host : allHosts)
        EXPECT_EQ(opensMainWindow({.isFirstEver = false, .isByHand = true}, host), host == Host::None)
            << static_cast<int>(host);
}

} // namespace keyvora
