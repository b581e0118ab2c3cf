// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/Waiting.h"
#include "platform/linux/atspi/AtspiAccessibility.h"

#include <QByteArray>
#include <QFuture>
#include <QHash>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>

namespace keyvora {

/// Short, because these tests wait for it to run out, and still long for an answer.
inline const AtspiAccessibility::Patience patience{
    .trust = {.silence = std::chrono::seconds(10), .total = std::chrono::seconds(10)},
    .menuBar = {.silence = std::chrono::milliseconds(700), .total = std::chrono::seconds(20)},
    .hitTest = {.silence = std::chrono::milliseconds(700), .total = std::chrono::seconds(2)},
};

/// Another program on the accessibility bus that behaves as its name says.
class StrangeApplication
{
public:
    explicit StrangeApplication(const QString &behaviour)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(KEYVORA_STRANGE_APPLICATION), {behaviour});
        m_isReady = m_process.waitForReadyRead() && m_process.readLine().trimmed() == "ready";
    }
    ~StrangeApplication()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(StrangeApplication)

    [[nodiscard]] bool isReady() const { return m_isReady; }
    [[nodiscard]] qint32 pid() const { return static_cast<qint32>(m_process.processId()); }
    void stop() { ::kill(pid(), SIGSTOP); }
    [[nodiscard]] bool hasEnded()
    {
        return m_process.state() == QProcess::NotRunning || m_process.waitForFinished();
    }

    /// Ends it. How often it was asked what, by the names of the methods.
    [[nodiscard]] QHash<QByteArray, int> end()
    {
        QHash<QByteArray, int> asked;
        m_process.closeWriteChannel();
        EXPECT_TRUE(hasEnded());
        for (QByteArray line = m_process.readLine(); !line.isEmpty(); line = m_process.readLine()) {
            const QList<QByteArray> words = line.trimmed().split(' ');
            asked.insert(words.constFirst(), words.constLast().toInt());
        }
        return asked;
    }

private:
    QProcess m_process;
    bool m_isReady = false;
};

template <typename Answer>
Answer waitFor(const QFuture<Answer> &future)
{
    EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
    return future.isFinished() ? future.result() : Answer();
}

} // namespace keyvora
