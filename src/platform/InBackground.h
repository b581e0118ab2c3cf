// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QPromise>
#include <QRunnable>
#include <QThreadPool>

#include <atomic>
#include <type_traits>
#include <utility>

namespace keyvora {

/// A job for a pool of threads, with what it needs.
template <typename Job>
class BackgroundJob : public QRunnable
{
public:
    explicit BackgroundJob(Job job)
        : m_job(std::move(job))
    {
        m_isHandedOver.store(true, std::memory_order_release);
    }

    void run() override
    {
        // The pool hands jobs over behind a lock of its own. Those who look for races cannot see into the
        // toolkit; this they see.
        if (m_isHandedOver.load(std::memory_order_acquire))
            m_job();
    }

private:
    Job m_job;
    std::atomic<bool> m_isHandedOver;
};

/// Has a thread of the pool do the job; returns at once.
template <typename Job>
void startInBackground(QThreadPool &pool, Job job)
{
    pool.start(new BackgroundJob<Job>(std::move(job)));
}

/// The same for a job whose result is wanted.
template <typename Job>
[[nodiscard]] QFuture<std::invoke_result_t<Job &>> inBackground(QThreadPool &pool, Job job)
{
    QPromise<std::invoke_result_t<Job &>> promise;
    promise.start();
    auto future = promise.future();
    startInBackground(pool, [promise = std::move(promise), job = std::move(job)]() mutable {
        promise.addResult(job());
        promise.finish();
    });
    return future;
}

} // namespace keyvora
