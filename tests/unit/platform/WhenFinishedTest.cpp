// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/WhenFinished.h"

#include "contract/Waiting.h"
#include "unit/Settle.h"

#include <QPromise>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <thread>

namespace keyvora {

TEST(WhenFinished, TellsTheResultOfAFutureThatIsFinishedAlready)
{
    QObject context;
    std::optional<int> told;
    whenFinished(QtFuture::makeReadyFuture(7), &context,
                 [&](const QFuture<int> &future) { told = future.result(); });
    EXPECT_EQ(told, std::nullopt) << "only the event loop tells";
    EXPECT_TRUE(becomesTrue([&] { return told == 7; }));
}

TEST(WhenFinished, TellsInTheThreadOfTheContext)
{
    QObject context;
    QPromise<int> promise;
    promise.start();
    QThread *thread = nullptr;
    whenFinished(promise.future(), &context,
                 [&](const QFuture<int> &) { thread = QThread::currentThread(); });
    settle();
    EXPECT_EQ(thread, nullptr);
    std::thread([&] {
        promise.addResult(7);
        promise.finish();
    }).join();
    EXPECT_TRUE(becomesTrue([&] { return thread != nullptr; }));
    EXPECT_EQ(thread, QThread::currentThread());
}

TEST(WhenFinished, TellsOnce)
{
    QObject context;
    int told = 0;
    whenFinished(QtFuture::makeReadyFuture(7), &context, [&](const QFuture<int> &) { ++told; });
    settle();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(context.children().isEmpty());
}

TEST(WhenFinished, TellsOfAFutureThatEndsWithoutAResult)
{
    QObject context;
    auto promise = std::make_unique<QPromise<int>>();
    promise->start();
    std::optional<int> told;
    whenFinished(promise->future(), &context,
                 [&](const QFuture<int> &future) { told = resultOr(future, -1); });
    promise.reset();
    EXPECT_TRUE(becomesTrue([&] { return told == -1; }));
}

TEST(WhenFinished, TellsNobodyWhoIsGone)
{
    auto context = std::make_unique<QObject>();
    QPromise<int> promise;
    promise.start();
    bool isTold = false;
    whenFinished(promise.future(), context.get(), [&](const QFuture<int> &) { isTold = true; });
    context.reset();
    promise.addResult(7);
    promise.finish();
    settle();
    EXPECT_FALSE(isTold);
}

TEST(WhenFinished, TellsNobodyWhoGoesBeforeTheEventLoopComesToIt)
{
    auto context = std::make_unique<QObject>();
    bool isTold = false;
    whenFinished(QtFuture::makeReadyFuture(7), context.get(), [&](const QFuture<int> &) { isTold = true; });
    context.reset();
    settle();
    EXPECT_FALSE(isTold);
}

TEST(ResultOr, IsTheResultWhereThereIsOne)
{
    EXPECT_EQ(resultOr(QtFuture::makeReadyFuture(7), -1), 7);
}

TEST(ResultOr, IsTheFallbackWhereThereIsNone)
{
    EXPECT_EQ(resultOr(QFuture<int>(), -1), -1);
}

} // namespace keyvora
