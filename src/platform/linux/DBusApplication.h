// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ApplicationInstance.h"

#include <QDBusConnection>
#include <QVariantMap>

namespace keyvora {

/// The program's one place as a name on the session bus, with the interface through which desktops start and
/// activate applications.
class DBusApplication : public ApplicationInstance
{
    Q_OBJECT

public:
    explicit DBusApplication(const QDBusConnection &sessionBus, QObject *parent = nullptr);

    [[nodiscard]] Claim claim(const QString &activationToken) override;

    // Called over the bus.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &action, const QVariantList &parameters,
                        const QVariantMap &platformData);

private slots:
    void loseSession() { emit sessionLost(); }

private:
    void catchUp();
    /// Whether it has answered.
    [[nodiscard]] bool activateRunning(const QString &activationToken);

    QDBusConnection m_bus;
};

} // namespace keyvora
