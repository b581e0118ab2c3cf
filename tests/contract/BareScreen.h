// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/X11Connection.h"

#include <QByteArray>
#include <QProcess>

#include <memory>

namespace keyvora {

/// An X server without a window manager and without any other client.
class BareScreen
{
public:
    BareScreen()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-noreset"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("640x480x24")});
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
