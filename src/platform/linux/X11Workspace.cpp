// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Workspace.h"

#include "platform/linux/X11Connection.h"

#include <QPointer>

#include <cstring>
#include <memory>
#include <utility>

namespace keyvora {

namespace {

constexpr uint32_t maximumClassBytes = 1024;
constexpr uint32_t maximumTypeBytes = 64;
constexpr qsizetype maximumKnownNames = 512;

std::optional<quint32> firstCardinal(const QByteArray &property)
{
    quint32 value = 0;
    if (property.size() < static_cast<qsizetype>(sizeof value))
        return std::nullopt;
    std::memcpy(&value, property.constData(), sizeof value);
    return value;
}

bool holdsAtom(const QByteArray &property, xcb_atom_t atom)
{
    for (qsizetype offset = 0; offset < property.size(); offset += static_cast<qsizetype>(sizeof atom)) {
        if (firstCardinal(property.sliced(offset)) == atom)
            return true;
    }
    return false;
}

} // namespace

X11Workspace::X11Workspace(X11Connection &connection, ApplicationNames names, QObject *parent)
    : Workspace(parent)
    , m_connection(connection)
    , m_names(std::move(names))
{
    m_nameSearch.setMaxThreadCount(1);
    connect(&m_connection, &X11Connection::eventReceived, this, &X11Workspace::handleEvent);
    m_connection.selectRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    readActiveWindow();
    m_connection.finishPendingReplies();
}

X11Workspace::~X11Workspace()
{
    m_nameSearch.waitForDone();
}

void X11Workspace::handleEvent(const xcb_generic_event_t *event)
{
    constexpr uint8_t sentByClientBit = 0x80;
    if ((event->response_type & ~sentByClientBit) != XCB_PROPERTY_NOTIFY)
        return;
    const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (change->window == m_connection.root() && change->atom == m_connection.atom("_NET_ACTIVE_WINDOW"))
        readActiveWindow();
}

void X11Workspace::readActiveWindow()
{
    m_connection.readProperty(m_connection.root(), "_NET_ACTIVE_WINDOW", sizeof(xcb_window_t),
                              [self = QPointer(this)](const QByteArray &value) {
                                  // Some window managers write two values; the first is the window.
                                  if (self)
                                      self->readWindow(firstCardinal(value).value_or(XCB_WINDOW_NONE));
                              });
}

void X11Workspace::readWindow(xcb_window_t window)
{
    const quint64 reading = ++m_reading;
    if (window == XCB_WINDOW_NONE) {
        m_frontmost.reset();
        return;
    }
    const auto facts = std::make_shared<WindowFacts>();
    m_connection.readProperty(window, "_NET_WM_PID", sizeof(quint32), [facts](const QByteArray &value) {
        const quint32 pid = firstCardinal(value).value_or(0);
        if (pid != 0 && std::in_range<qint32>(pid))
            facts->pid = static_cast<qint32>(pid);
    });
    m_connection.readProperty(
        window, "_GTK_APPLICATION_ID", maximumClassBytes,
        [facts](const QByteArray &value) { facts->identity.gtkApplicationId = QString::fromUtf8(value); });
    const xcb_atom_t dock = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    const xcb_atom_t desktop = m_connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    m_connection.readProperty(
        window, "_NET_WM_WINDOW_TYPE", maximumTypeBytes, [facts, dock, desktop](const QByteArray &value) {
            facts->isPartOfDesktop = holdsAtom(value, dock) || holdsAtom(value, desktop);
        });
    // Answers come in the order of the questions, so that this one completes the facts.
    m_connection.readProperty(window, "WM_CLASS", maximumClassBytes,
                              [self = QPointer(this), facts, reading](const QByteArray &value) {
                                  const QList<QByteArray> parts = value.split('\0');
                                  facts->identity.windowInstance = QString::fromUtf8(parts.value(0));
                                  facts->identity.windowClass = QString::fromUtf8(parts.value(1));
                                  if (self)
                                      self->windowRead(reading, *facts);
                              });
}

void X11Workspace::windowRead(quint64 reading, const WindowFacts &facts)
{
    if (reading != m_reading || facts.isPartOfDesktop)
        return;
    const quint64 activation = ++m_activation;
    if (!facts.pid && facts.identity == WindowIdentity()) {
        m_frontmost.reset(); // the window is gone already
        return;
    }
    const auto known = m_knownNames.constFind(facts.identity);
    if (known != m_knownNames.constEnd()) {
        m_frontmost = RunningApplication{*known, facts.pid};
        emit applicationActivated(*m_frontmost);
        return;
    }
    m_frontmost = RunningApplication{ApplicationNames::fallback(facts.identity), facts.pid};
    findName(activation, facts.identity);
}

void X11Workspace::findName(quint64 activation, const WindowIdentity &identity)
{
    // The destructor waits for the search, so that `this` and the names outlive it.
    m_nameSearch.start([this, activation, identity] {
        const QString name = m_names.find(identity);
        QMetaObject::invokeMethod(
            this, [this, activation, identity, name] { nameFound(activation, identity, name); },
            Qt::QueuedConnection);
    });
}

void X11Workspace::nameFound(quint64 activation, const WindowIdentity &identity, const QString &name)
{
    const QString shown = name.isEmpty() ? ApplicationNames::fallback(identity) : name;
    if (m_knownNames.size() >= maximumKnownNames)
        m_knownNames.clear();
    m_knownNames.insert(identity, shown);
    if (activation != m_activation || !m_frontmost)
        return;
    m_frontmost->name = shown;
    emit applicationActivated(*m_frontmost);
}

} // namespace keyvora
