// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QFutureWatcher>
#include <QObject>

#include <utility>

namespace keyvora {

/// Calls `handler` with the future, in the context's thread and from its event loop, once the future is
/// finished; never, when the context is gone by then. To be called in the context's thread. (Continuations of
/// Qt 6.4 that are given a context must not outlive it.)
template <typename T, typename Handler>
void whenFinished(const QFuture<T> &future, QObject *context, Handler handler)
{
    auto *watcher = new QFutureWatcher<T>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                     [watcher, handler = std::move(handler)]() mutable {
                         watcher->deleteLater();
                         handler(watcher->future());
                     });
    watcher->setFuture(future);
}

/// The result of a finished future, or the fallback when it ended without one.
template <typename T>
[[nodiscard]] T resultOr(const QFuture<T> &finished, T fallback)
{
    return finished.resultCount() > 0 ? finished.result() : std::move(fallback);
}

} // namespace keyvora
