// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "unit/platform/linux/Files.h"

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <mutex>

namespace keyvora {

/// A session bus that nobody else is on and that starts no services by itself.
class PrivateBus
{
public:
    PrivateBus()
    {
        const QString configuration = m_folder.filePath(QStringLiteral("bus.conf"));
        if (!writeFile(configuration,
                       "<busconfig><type>session</type><listen>unix:tmpdir=" + m_folder.path().toUtf8() +
                           "</listen><policy context=\"default\">"
                           "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow own=\"*\"/>"
                           "</policy></busconfig>"))
            return;
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                        QStringLiteral("--nosyslog"), QStringLiteral("--print-address=1"),
                        QStringLiteral("--config-file=") + configuration});
        if (m_daemon.waitForReadyRead())
            m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
    }

    ~PrivateBus()
    {
        for (const QString &name : m_connections)
            QDBusConnection::disconnectFromBus(name);
        end();
    }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    /// Ends the bus under those that are on it.
    void end()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] QString address() const { return m_address; }

    /// A connection of its own; the name tells it from the others of this bus. For any thread.
    QDBusConnection connect(const QString &name)
    {
        // Names are known all over the process, addresses differ from bus to bus.
        const QString unique = name + u'@' + m_address;
        {
            const std::scoped_lock lock(m_mutex);
            m_connections.append(unique);
        }
        return QDBusConnection::connectToBus(m_address, unique);
    }

    /// Ends a connection once nobody holds it any more.
    void release(const QString &name) { QDBusConnection::disconnectFromBus(name + u'@' + m_address); }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    std::mutex m_mutex;
    QStringList m_connections;
};

} // namespace keyvora
