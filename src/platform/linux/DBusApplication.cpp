// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DBusApplication.h"

#include "applicationadaptor.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const auto serviceName = u"app.keyvora.Keyvora"_s;
const auto objectPath = u"/app/keyvora/Keyvora"_s;
const auto interfaceName = u"org.freedesktop.Application"_s;

/// How long a second start waits for the first one to answer before it ends all the same.
constexpr int activationTimeoutMs = 5000;

constexpr int maximumAttempts = 2;

QString activationToken(const QVariantMap &platformData)
{
    const QString token = platformData.value(u"activation-token"_s).toString();
    return token.isEmpty() ? platformData.value(u"desktop-startup-id"_s).toString() : token;
}

} // namespace

DBusApplication::DBusApplication(const QDBusConnection &sessionBus, QObject *parent)
    : ApplicationInstance(parent)
    , m_bus(sessionBus)
{
    new ApplicationAdaptor(this);
}

ApplicationInstance::Claim DBusApplication::claim(const QString &activationToken)
{
    // Until the event loop runs, nothing that comes over the bus is passed on.
    QMetaObject::invokeMethod(this, &DBusApplication::catchUp, Qt::QueuedConnection);
    if (!m_bus.isConnected())
        return Claim::Alone;
    // Whoever finds the name taken may call at once, so the object is there before the name.
    m_bus.registerObject(objectPath, this);
    for (int attempt = 1;; ++attempt) {
        const auto reply =
            m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService);
        if (!reply.isValid())
            return Claim::Alone;
        if (reply.value() == QDBusConnectionInterface::ServiceRegistered) {
            m_bus.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                          u"Disconnected"_s, this, SLOT(loseSession()));
            return Claim::First;
        }
        // One that is just ending answers no more; once it is gone its place is free.
        if (activateRunning(activationToken) || attempt == maximumAttempts)
            return Claim::HandedOver;
    }
}

void DBusApplication::catchUp()
{
    // A call over no bus is never answered.
    if (!m_bus.isConnected()) {
        emit caughtUp();
        return;
    }
    // The bus keeps what it started the program for until the name is taken, and answers in the order of
    // events.
    const auto bus = u"org.freedesktop.DBus"_s;
    const QDBusMessage call =
        QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"GetId"_s);
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call, activationTimeoutMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        emit caughtUp();
    });
}

bool DBusApplication::activateRunning(const QString &activationToken)
{
    QVariantMap platformData;
    if (!activationToken.isEmpty()) {
        platformData.insert(u"activation-token"_s, activationToken);
        platformData.insert(u"desktop-startup-id"_s, activationToken);
    }
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, u"Activate"_s);
    call.setArguments({platformData});
    // This process has nothing else to do, so it may wait.
    return m_bus.call(call, QDBus::Block, activationTimeoutMs).type() == QDBusMessage::ReplyMessage;
}

void DBusApplication::Activate(const QVariantMap &platformData)
{
    emit activated(activationToken(platformData));
}

void DBusApplication::Open([[maybe_unused]] const QStringList &uris, const QVariantMap &platformData)
{
    // The program opens no documents.
    emit activated(activationToken(platformData));
}

void DBusApplication::ActivateAction(const QString &action, [[maybe_unused]] const QVariantList &parameters,
                                     const QVariantMap &platformData)
{
    emit actionActivated(action, activationToken(platformData));
}

} // namespace keyvora
