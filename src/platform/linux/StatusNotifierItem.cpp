// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/StatusNotifierItem.h"

#include "statusnotifieritemadaptor.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const auto itemPath = u"/StatusNotifierItem"_s;
const auto watcherService = u"org.kde.StatusNotifierWatcher"_s;
const auto watcherInterface = watcherService;
const auto watcherPath = u"/StatusNotifierWatcher"_s;
const auto busService = u"org.freedesktop.DBus"_s;
const auto busPath = u"/org/freedesktop/DBus"_s;
const auto propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

constexpr qsizetype maximumTokenLength = 1024;

QDBusMessage methodCall(const QString &service, const QString &path, const QString &interface,
                        const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    return call;
}

/// Calls the handler with the pending reply, unless the context is gone by then.
template <typename Handler>
void whenFinished(const QDBusPendingCall &call, QObject *context, Handler handler)
{
    auto *pending = new QDBusPendingCallWatcher(call, context);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, context, [pending, handler] {
        pending->deleteLater();
        handler(*pending);
    });
}

} // namespace

StatusNotifierItem::StatusNotifierItem(StatusIcon icon, const QDBusConnection &sessionBus, QObject *parent)
    : QObject(parent)
    , m_bus(sessionBus)
    , m_icon(std::move(icon))
{
    if (!m_bus.isConnected()) {
        m_hasHost = false;
        return;
    }
    registerIconTypes();
    new StatusNotifierItemAdaptor(this);
    m_bus.registerObject(itemPath, this);

    auto *owners =
        new QDBusServiceWatcher(watcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) { followWatcher(newOwner); });
    // Signals of a named service would make the library ask the bus for its owner, and wait for the answer.
    for (const QString &signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
        m_bus.connect(QString(), watcherPath, watcherInterface, signal, this,
                      SLOT(hostsChanged(QDBusMessage)));
    }
    findWatcher();
}

StatusNotifierItem::~StatusNotifierItem()
{
    m_bus.unregisterObject(itemPath);
}

void StatusNotifierItem::askAgain()
{
    if (m_hasHost != false || !m_bus.isConnected())
        return;
    m_hasHost.reset();
    if (m_watcher.isEmpty())
        findWatcher();
    else
        askForHost();
}

QString StatusNotifierItem::category() const
{
    return u"ApplicationStatus"_s;
}

QString StatusNotifierItem::id() const
{
    return u"app.keyvora.Keyvora"_s;
}

IconPixmapList StatusNotifierItem::pixmaps() const
{
    if (m_pixmaps.isEmpty())
        m_pixmaps = iconPixmaps(m_icon.picture);
    return m_pixmaps;
}

QString StatusNotifierItem::title() const
{
    return u"Keyvora"_s;
}

QString StatusNotifierItem::status() const
{
    return u"Active"_s;
}

IconToolTip StatusNotifierItem::toolTip() const
{
    return {.iconName = {}, .iconPixmaps = {}, .title = title(), .text = {}};
}

QDBusObjectPath StatusNotifierItem::menu() const
{
    // Some desktops open a menu instead of passing the click on, so there is none.
    return QDBusObjectPath(u"/NO_DBUSMENU"_s);
}

void StatusNotifierItem::Activate(int x, int y)
{
    emit activated(QPoint(x, y), std::exchange(m_activationToken, {}));
}

void StatusNotifierItem::SecondaryActivate(int x, int y)
{
    Activate(x, y);
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    Activate(x, y);
}

void StatusNotifierItem::Scroll([[maybe_unused]] int delta, [[maybe_unused]] const QString &orientation) {}

void StatusNotifierItem::ProvideXdgActivationToken(const QString &token)
{
    if (token.size() <= maximumTokenLength)
        m_activationToken = token;
}

void StatusNotifierItem::hostsChanged(const QDBusMessage &signal)
{
    // One host that goes may leave others behind, so the watcher is asked what is true now.
    if (!m_watcher.isEmpty() && signal.service() == m_watcher)
        askForHost();
}

void StatusNotifierItem::findWatcher()
{
    const QDBusPendingCall call =
        m_bus.asyncCall(methodCall(busService, busPath, busService, u"GetNameOwner"_s, {watcherService}));
    whenFinished(call, this, [this](const QDBusPendingReply<QString> &reply) {
        // A change of owner that was announced meanwhile is the newer fact.
        if (m_watcher.isEmpty() && !m_hasHost)
            followWatcher(reply.isValid() ? reply.value() : QString());
    });
}

void StatusNotifierItem::followWatcher(const QString &owner)
{
    m_watcher = owner;
    if (owner.isEmpty()) {
        setHasHost(false);
        return;
    }
    m_bus.asyncCall(methodCall(owner, watcherPath, watcherInterface, u"RegisterStatusNotifierItem"_s,
                               {m_bus.baseService()}));
    m_hasHost.reset();
    askForHost();
}

void StatusNotifierItem::askForHost()
{
    const QDBusPendingCall call =
        m_bus.asyncCall(methodCall(m_watcher, watcherPath, propertiesInterface, u"Get"_s,
                                   {watcherInterface, u"IsStatusNotifierHostRegistered"_s}));
    whenFinished(call, this, [this, asked = m_watcher](const QDBusPendingReply<QDBusVariant> &reply) {
        if (asked == m_watcher)
            setHasHost(reply.isValid() && reply.value().variant().toBool());
    });
}

void StatusNotifierItem::setHasHost(bool hasHost)
{
    if (m_hasHost == hasHost)
        return;
    m_hasHost = hasHost;
    emit hasHostChanged();
}

} // namespace keyvora
