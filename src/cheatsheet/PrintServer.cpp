// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintServer.h"

#include "platform/InBackground.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLibrary>

#include <atomic>
#include <cups/cups.h>

namespace keyvora {

namespace {

constexpr int patienceMilliseconds = 3000;
/// How often a wait looks at the deadline and at whether the program ends meanwhile.
constexpr double secondsBetweenLooks = 0.2;

// A plain number, because the print system's library looks at it while it connects.
int endingFlag = 0;

bool isEnding()
{
    return std::atomic_ref(endingFlag).load(std::memory_order_relaxed) != 0;
}

/// What is used of the print system's library. It is loaded for printing alone: it brings a dozen others with
/// it, which the first window would wait for.
class PrintLibrary
{
    // Before the functions, which come out of it.
    QLibrary m_library{QStringLiteral("cups"), 2};
    bool m_isComplete = true;

    template <typename Function>
    Function resolved(const char *name)
    {
        const auto function = reinterpret_cast<Function>(m_library.resolve(name));
        m_isComplete = m_isComplete && function != nullptr;
        return function;
    }

public:
    decltype(&::cupsServer) server = resolved<decltype(&::cupsServer)>("cupsServer");
    decltype(&::ippPort) port = resolved<decltype(&::ippPort)>("ippPort");
    decltype(&::cupsEncryption) encryption = resolved<decltype(&::cupsEncryption)>("cupsEncryption");
    decltype(&::httpConnect2) connect = resolved<decltype(&::httpConnect2)>("httpConnect2");
    decltype(&::httpSetTimeout) setTimeout = resolved<decltype(&::httpSetTimeout)>("httpSetTimeout");
    decltype(&::httpOptions) askOptions = resolved<decltype(&::httpOptions)>("httpOptions");
    decltype(&::httpUpdate) update = resolved<decltype(&::httpUpdate)>("httpUpdate");
    decltype(&::httpClose) close = resolved<decltype(&::httpClose)>("httpClose");

    [[nodiscard]] bool isComplete() const { return m_isComplete; }
};

/// Non-zero to go on waiting.
int keepsWaiting(http_t * /*connection*/, void *deadline)
{
    return static_cast<QDeadlineTimer *>(deadline)->hasExpired() || isEnding() ? 0 : 1;
}

bool answersInTime()
{
    static const PrintLibrary library;
    // Without it the toolkit asks no print server either.
    if (!library.isComplete())
        return true;
    QDeadlineTimer deadline(patienceMilliseconds);
    http_t *connection = library.connect(library.server(), library.port(), nullptr, AF_UNSPEC,
                                         library.encryption(), 1, patienceMilliseconds, &endingFlag);
    if (connection == nullptr)
        return !deadline.hasExpired();
    if (!isEnding()) {
        library.setTimeout(connection, secondsBetweenLooks, &keepsWaiting, &deadline);
        // Anything will do. What it is asked in the print protocol begins with a second of deaf waiting.
        if (library.askOptions(connection, "/") == 0) {
            while (library.update(connection) == HTTP_STATUS_CONTINUE) {
            }
        }
    }
    library.close(connection);
    return !deadline.hasExpired();
}

} // namespace

QFuture<bool> isPrintServerResponsive()
{
    // The end of the program waits for what other threads do.
    static const auto ending =
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] { std::atomic_ref(endingFlag).store(1); });
    Q_UNUSED(ending)
    return inBackground(*QThreadPool::globalInstance(), &answersInTime);
}

} // namespace keyvora
