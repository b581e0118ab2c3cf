// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace keyvora {

/// What makes the program run once per session: the first start keeps the session's one place, later ones
/// hand over to it.
class ApplicationInstance : public QObject
{
    Q_OBJECT

public:
    enum class Claim : quint8 {
        First,      ///< this process is the program
        HandedOver, ///< another process is, and has been activated, unless it does not respond
        Alone,      ///< the session offers no way to tell; this process runs by itself
    };

    using QObject::QObject;

    /// Asks for the place, once, before the event loop runs. The token is what the desktop gave this start so
    /// that a window may come to the front; it is handed to the running program.
    [[nodiscard]] virtual Claim claim(const QString &activationToken) = 0;

signals:
    /// Somebody started the program again, or asked the desktop to show it.
    void activated(const QString &activationToken);
    /// One of the actions of the desktop entry was chosen.
    void actionActivated(const QString &action, const QString &activationToken);
    /// This process is the program, and has been told what the desktop started it for, if it was for
    /// something: comes once, from the event loop, after such a signal as the above.
    void caughtUp();
    /// The session that the place was in is over. Later starts do not find this process any more.
    void sessionLost();
};

} // namespace keyvora
