// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QSocketNotifier;

namespace keyvora {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into an ordinary signal of the event
/// loop. At most one at a time. Those that come once a process was asked to end and this is gone are ignored.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();

private:
    QSocketNotifier *m_notifier = nullptr;
};

} // namespace keyvora
