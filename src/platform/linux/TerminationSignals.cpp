// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace keyvora {

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler can reach nothing but statics.
int writingEnd = -1;
int readingEnd = -1;
/// What the signals did before.
std::array<struct sigaction, handledSignals.size()> previousActions{};

void announce(int)
{
    const int savedError = errno;
    [[maybe_unused]] const auto written = write(writingEnd, "x", 1);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    readingEnd = ends[0];
    writingEnd = ends[1];
    m_notifier = new QSocketNotifier(readingEnd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        emit terminationRequested();
    });
    struct sigaction action = {};
    action.sa_handler = announce;
    action.sa_flags = SA_RESTART;
    for (size_t i = 0; i < handledSignals.size(); ++i) {
        sigaction(handledSignals[i], nullptr, &previousActions[i]);
        // Who was started to outlive its terminal, or its shell's interrupts, does.
        if (previousActions[i].sa_handler != SIG_IGN)
            sigaction(handledSignals[i], &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    // A process that ends already must not be cut off by a second signal before it is done.
    const bool endsAlready = m_notifier != nullptr && !m_notifier->isEnabled();
    if (m_notifier == nullptr)
        return;
    for (size_t i = 0; i < handledSignals.size(); ++i) {
        if (endsAlready)
            std::signal(handledSignals[i], SIG_IGN);
        else
            sigaction(handledSignals[i], &previousActions[i], nullptr);
    }
    m_notifier->setEnabled(false);
    close(readingEnd);
    close(writingEnd);
}

} // namespace keyvora
