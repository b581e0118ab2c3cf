// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/X11Connection.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <memory>

namespace keyvora {

/// An X server without a window manager and without any other client.
class BareScreen
{
public:
    /// The server takes further arguments.
    explicit BareScreen(const QStringList &arguments = {})
    {
        m_server.start(QStringLiteral("Xvfb"),
                       QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                                   QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                   QStringLiteral("-noreset"), QStringLiteral("-screen"), QStringLiteral("0"),
                                   QStringLiteral("640x480x24")} +
                           arguments);
        // The server writes its number when it is ready for clients.
        if (m_server.waitForReadyRead())
            m_display = ':' + m_server.readLine().trimmed();
    }

    ~BareScreen() { end(); }
    Q_DISABLE_COPY_MOVE(BareScreen)

    [[nodiscard]] QByteArray display() const { return m_display; }

    /// A connection of the program's kind, which looks for the display in the environment.
    [[nodiscard]] std::unique_ptr<X11Connection> open() const
    {
        const QByteArray before = qgetenv("DISPLAY");
        qputenv("DISPLAY", m_display);
        auto connection = X11Connection::open();
        qputenv("DISPLAY", before);
        return connection;
    }

    /// The environment of the programs on this screen.
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), QString::fromUtf8(m_display));
        return environment;
    }

    /// Runs a program to its end; whether it had success.
    [[nodiscard]] bool run(const QString &program, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(program, arguments);
        return process.waitForFinished() && process.exitCode() == 0;
    }

    /// The server goes away; its lock file goes with it.
    void end()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

private:
    QProcess m_server;
    QByteArray m_display;
};

} // namespace keyvora
