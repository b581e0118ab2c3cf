// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/HelperUrlLoader.h"

#include <QProcess>
#include <QPromise>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace keyvora {

namespace {

/// One helper at work. Deletes itself when the helper has ended.
class HelperLoad : public QObject
{
public:
    HelperLoad(const QString &helper, const QUrl &address, std::chrono::milliseconds patience,
               QObject *parent)
        : QObject(parent)
    {
        m_answer.start();
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        connect(&m_process, &QProcess::readyReadStandardOutput, this, &HelperLoad::read);
        connect(&m_process, &QProcess::finished, this, &HelperLoad::finish);
        connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            // After any other error the process tells that it has finished.
            if (error == QProcess::FailedToStart)
                answer(std::nullopt);
        });
        connect(&m_patience, &QTimer::timeout, this, &HelperLoad::giveUp);
        m_patience.setSingleShot(true);
        m_patience.start(patience);
        m_process.start(helper, {address.toString(QUrl::FullyEncoded)});
    }

    ~HelperLoad() override
    {
        m_process.disconnect(this);
        if (m_process.state() == QProcess::NotRunning)
            return;
        // It ends at once; this only takes note of it.
        constexpr int patienceMs = 1000;
        m_process.kill();
        m_process.waitForFinished(patienceMs);
    }

    Q_DISABLE_COPY_MOVE(HelperLoad)

    [[nodiscard]] QFuture<std::optional<QByteArray>> future() const { return m_answer.future(); }

private:
    void read()
    {
        m_document += m_process.readAllStandardOutput();
        if (m_document.size() > UrlLoader::maximumBytes)
            giveUp();
    }

    void giveUp()
    {
        m_isGivenUp = true;
        m_document.clear();
        m_process.closeReadChannel(QProcess::StandardOutput);
        m_process.kill();
    }

    void finish(int exitCode, QProcess::ExitStatus status)
    {
        const bool succeeds = !m_isGivenUp && status == QProcess::NormalExit && exitCode == 0;
        answer(succeeds ? std::optional(m_document) : std::nullopt);
    }

    void answer(const std::optional<QByteArray> &document)
    {
        m_patience.stop();
        m_answer.addResult(document);
        m_answer.finish();
        deleteLater();
    }

    QProcess m_process;
    QTimer m_patience;
    QByteArray m_document;
    QPromise<std::optional<QByteArray>> m_answer;
    bool m_isGivenUp = false;
};

} // namespace

HelperUrlLoader::HelperUrlLoader(QString helper, std::chrono::milliseconds patience)
    : m_helper(std::move(helper))
    , m_patience(patience)
{
}

QFuture<std::optional<QByteArray>> HelperUrlLoader::load(const QUrl &address)
{
    // Its parent owns it.
    const auto *load = new HelperLoad(m_helper, address, m_patience, &m_loads);
    return load->future();
}

} // namespace keyvora
