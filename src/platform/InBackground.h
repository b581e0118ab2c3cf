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

/// Orders what is done before a job is handed over before the job. The pool does so behind a lock of its own,
/// but those who look for races cannot see into the toolkit; this they see.
inline std::atomic<unsigned> &jobsHandedOver()
{
    static std::atomic<unsigned> count;
    return count;
}

/// A job for a pool of threads, with what it needs.
template <typename Job>
class BackgroundJob : public QRunnable
{
public:
    explicit BackgroundJob(Job job)
        : m_job(std::move(job))
    {
    }

    void run() override
    {
        jobsHandedOver().load(std::memory_order_acquire);
        m_job();
    }

private:
    Job m_job;
};

/// Has a thread of the pool do the job; returns at once.
template <typename Job>
void startInBackground(QThreadPool &pool, Job job)
{
    auto *backgroundJob = new BackgroundJob<Job>(std::move(job));
    jobsHandedOver().fetch_add(1, std::memory_order_release);
    pool.start(backgroundJob);
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
