// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/TerminationSignals.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <array>
#include <csignal>
#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

class TerminationSignalsTest : public testing::Test
{
protected:
    TerminationSignalsTest() { ignoreNothing(); }

    /// As in a process that was just started; one that ends ignores what comes then.
    static void ignoreNothing()
    {
        for (const int signal : endingSignals)
            std::signal(signal, SIG_DFL);
    }
};

} // namespace

TEST_F(TerminationSignalsTest, ArriveFromTheEventLoop)
{
    for (const int signal : endingSignals) {
        ignoreNothing();
        const TerminationSignals termination;
        QSignalSpy requests(&termination, &TerminationSignals::terminationRequested);
        ASSERT_EQ(raise(signal), 0);
        EXPECT_TRUE(requests.isEmpty()) << signal;
        EXPECT_TRUE(requests.wait()) << signal;
        QCoreApplication::processEvents();
        EXPECT_EQ(requests.size(), 1) << signal;
    }
}

TEST_F(TerminationSignalsTest, ArriveOnceHoweverManyThereAre)
{
    const TerminationSignals termination;
    QSignalSpy requests(&termination, &TerminationSignals::terminationRequested);
    for (const int signal : endingSignals)
        ASSERT_EQ(raise(signal), 0);
    EXPECT_TRUE(requests.wait());
    ASSERT_EQ(raise(SIGTERM), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(requests.size(), 1);
}

TEST_F(TerminationSignalsTest, DoNotCutOffAProcessThatEndsAlready)
{
    {
        const TerminationSignals termination;
        QSignalSpy requests(&termination, &TerminationSignals::terminationRequested);
        ASSERT_EQ(raise(SIGTERM), 0);
        ASSERT_TRUE(requests.wait());
    }
    for (const int signal : endingSignals)
        ASSERT_EQ(raise(signal), 0) << "and the process is still there";
}

TEST_F(TerminationSignalsTest, LeaveWhatTheProgramWasToldToIgnore)
{
    std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationSignals termination;
        const QSignalSpy requests(&termination, &TerminationSignals::terminationRequested);
        ASSERT_EQ(raise(SIGHUP), 0);
        QCoreApplication::processEvents();
        EXPECT_TRUE(requests.isEmpty());
    }
    struct sigaction action = {};
    ASSERT_EQ(sigaction(SIGHUP, nullptr, &action), 0);
    EXPECT_EQ(action.sa_handler, SIG_IGN);
    std::signal(SIGHUP, SIG_DFL);
}

TEST_F(TerminationSignalsTest, HaveTheirUsualEffectAgainAfterwards)
{
    {
        const TerminationSignals termination;
    }
    for (const int signal : endingSignals) {
        struct sigaction action = {};
        ASSERT_EQ(sigaction(signal, nullptr, &action), 0);
        EXPECT_EQ(action.sa_handler, SIG_DFL) << signal;
    }
}

} // namespace keyvora
