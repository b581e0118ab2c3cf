// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>

namespace keyvora {

/// The desktop's register of icons on the session bus, played over a connection of its own. It takes its
/// place at construction and leaves it at destruction.
class FakeStatusNotifierWatcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)

public:
    enum class Hosts : quint8 { None, Registered };

    /// The name of the connection must differ from those of other connections of the process.
    explicit FakeStatusNotifierWatcher(const QString &connectionName, Hosts hosts = Hosts::Registered)
        : m_connectionName(connectionName)
        , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName))
        , m_isHostRegistered(hosts == Hosts::Registered)
    {
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                             QDBusConnection::ExportScriptableSlots |
                                 QDBusConnection::ExportScriptableSignals |
                                 QDBusConnection::ExportAllProperties);
        m_hasPlace = m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }

    ~FakeStatusNotifierWatcher() override { QDBusConnection::disconnectFromBus(m_connectionName); }

    [[nodiscard]] bool hasPlace() const { return m_hasPlace; }
    [[nodiscard]] bool isHostRegistered() const { return m_isHostRegistered; }
    [[nodiscard]] QStringList items() const { return m_items; }

    /// One status area comes while others are there or not.
    void addHost()
    {
        m_isHostRegistered = true;
        emit StatusNotifierHostRegistered();
    }

    /// One status area goes; others may stay.
    void removeHost(Hosts left)
    {
        m_isHostRegistered = left == Hosts::Registered;
        emit StatusNotifierHostUnregistered();
    }

public slots:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString &service) { m_items.append(service); }

signals:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();
    Q_SCRIPTABLE void StatusNotifierHostUnregistered();

private:
    QString m_connectionName;
    QDBusConnection m_bus;
    bool m_isHostRegistered;
    bool m_hasPlace = false;
    QStringList m_items;
};

} // namespace keyvora
