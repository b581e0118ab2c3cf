// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintServer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QPromise>
#include <QThreadPool>

#include <cups/cups.h>
#include <memory>

namespace keyvora {

namespace {

constexpr int patienceMilliseconds = 3000;
/// How often a wait looks at the deadline and at whether the program ends meanwhile.
constexpr double secondsBetweenLooks = 0.2;

// A plain number, because the print system's library looks at it while it connects.
int isEnding = 0;

struct CloseConnection
{
    void operator()(http_t *server) const { httpClose(server); }
};

/// Non-zero to go on waiting.
int keepsWaiting(http_t * /*server*/, void *deadline)
{
    return static_cast<QDeadlineTimer *>(deadline)->hasExpired() || isEnding != 0 ? 0 : 1;
}

bool answersInTime()
{
    QDeadlineTimer deadline(patienceMilliseconds);
    const std::unique_ptr<http_t, CloseConnection> server(httpConnect2(
        cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patienceMilliseconds, &isEnding));
    if (server && isEnding == 0) {
        httpSetTimeout(server.get(), secondsBetweenLooks, &keepsWaiting, &deadline);
        // Anything will do. What it is asked in the print protocol begins with a second of deaf waiting.
        if (httpOptions(server.get(), "/") == 0) {
            while (httpUpdate(server.get()) == HTTP_STATUS_CONTINUE) {
            }
        }
    }
    return !deadline.hasExpired();
}

} // namespace

QFuture<bool> isPrintServerResponsive()
{
    // The end of the program waits for what other threads do.
    static const auto ending = QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] { isEnding = 1; });
    Q_UNUSED(ending)
    const auto promise = std::make_shared<QPromise<bool>>();
    QFuture<bool> future = promise->future();
    promise->start();
    QThreadPool::globalInstance()->start([promise] {
        promise->addResult(answersInTime());
        promise->finish();
    });
    return future;
}

} // namespace keyvora
