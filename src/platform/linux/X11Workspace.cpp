// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Workspace.h"

#include "platform/InBackground.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cstring>
#include <utility>

namespace keyvora {

namespace {

qint32 ownPid()
{
    return static_cast<qint32>(QCoreApplication::applicationPid());
}

constexpr uint32_t maximumClassBytes = 1024;
constexpr uint32_t maximumAtomBytes = 64;
constexpr uint32_t maximumWindows = 4096;
constexpr qsizetype maximumKnownNames = 512;
constexpr qsizetype maximumApplications = 256;

/// Windows, atoms and cardinals alike; what is left over at the end is none.
QList<quint32> numbers(const QByteArray &property)
{
    QList<quint32> values(property.size() / static_cast<qsizetype>(sizeof(quint32)));
    if (!values.isEmpty())
        std::memcpy(values.data(), property.constData(),
                    static_cast<size_t>(values.size()) * sizeof(quint32));
    return values;
}

} // namespace

X11Workspace::X11Workspace(X11Connection &connection, ApplicationNames names, QObject *parent)
    : Workspace(parent)
    , m_connection(connection)
    , m_names(std::move(names))
{
    m_nameSearch.setMaxThreadCount(1);
    connect(&m_connection, &X11Connection::eventReceived, this, &X11Workspace::handleEvent);
    connect(&m_connection, &X11Connection::eventsDispatched, this, [this] {
        if (m_isActiveWindowStale)
            readActiveWindow();
    });
    m_connection.selectRootEvents(XCB_EVENT_MASK_PROPERTY_CHANGE);
    readActiveWindow();
    m_connection.finishPendingReplies();
}

X11Workspace::~X11Workspace()
{
    m_nameSearch.clear();
    m_nameSearch.waitForDone();
}

void X11Workspace::handleEvent(const xcb_generic_event_t *event)
{
    if (typeOf(*event) != XCB_PROPERTY_NOTIFY)
        return;
    const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (change->window == m_connection.root() && change->atom == m_connection.atom("_NET_ACTIVE_WINDOW"))
        m_isActiveWindowStale = true;
}

void X11Workspace::readWindow(xcb_window_t window, const FactsHandler &handler)
{
    const auto facts = std::make_shared<WindowFacts>();
    m_connection.readProperty(window, "_NET_WM_PID", sizeof(quint32), [facts](const QByteArray &value) {
        const quint32 pid = numbers(value).value(0);
        if (pid != 0 && std::in_range<qint32>(pid))
            facts->pid = static_cast<qint32>(pid);
    });
    m_connection.readProperty(
        window, "_GTK_APPLICATION_ID", maximumClassBytes,
        [facts](const QByteArray &value) { facts->identity.gtkApplicationId = QString::fromUtf8(value); });
    const xcb_atom_t dock = m_connection.atom("_NET_WM_WINDOW_TYPE_DOCK");
    const xcb_atom_t desktop = m_connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP");
    const xcb_atom_t normal = m_connection.atom("_NET_WM_WINDOW_TYPE_NORMAL");
    m_connection.readProperty(window, "_NET_WM_WINDOW_TYPE", maximumAtomBytes,
                              [facts, dock, desktop, normal](const QByteArray &value) {
                                  const QList<quint32> types = numbers(value);
                                  facts->isPartOfDesktop = types.contains(dock) || types.contains(desktop);
                                  facts->isInTaskList = types.isEmpty() || types.contains(normal);
                              });
    const xcb_atom_t skipped = m_connection.atom("_NET_WM_STATE_SKIP_TASKBAR");
    m_connection.readProperty(window, "_NET_WM_STATE", maximumAtomBytes,
                              [facts, skipped](const QByteArray &value) {
                                  if (numbers(value).contains(skipped))
                                      facts->isInTaskList = false;
                              });
    // Answers come in the order of the questions, so that this one completes the facts.
    m_connection.readProperty(window, "WM_CLASS", maximumClassBytes,
                              [facts, handler](const QByteArray &value) {
                                  const QList<QByteArray> parts = value.split('\0');
                                  facts->identity.windowInstance = QString::fromUtf8(parts.value(0));
                                  facts->identity.windowClass = QString::fromUtf8(parts.value(1));
                                  handler(*facts);
                              });
}

void X11Workspace::readActiveWindow()
{
    m_isActiveWindowStale = false;
    m_connection.readProperty(m_connection.root(), "_NET_ACTIVE_WINDOW", sizeof(xcb_window_t),
                              [self = QPointer(this)](const QByteArray &value) {
                                  // Some window managers write two values; the first is the window.
                                  if (self)
                                      self->activeWindowAnnounced(numbers(value).value(0));
                              });
}

void X11Workspace::activeWindowAnnounced(xcb_window_t window)
{
    const quint64 reading = ++m_reading;
    if (window == XCB_WINDOW_NONE) {
        m_frontmost.reset();
        return;
    }
    readWindow(window, [self = QPointer(this), reading](const WindowFacts &facts) {
        if (self)
            self->activeWindowRead(reading, facts);
    });
}

void X11Workspace::activeWindowRead(quint64 reading, const WindowFacts &facts)
{
    if (reading != m_reading)
        return;
    if (facts.isPartOfDesktop) {
        // Other applications stay in front of a panel or the desktop; we do not, who watch others work.
        if (m_frontmost && m_frontmost->pid == ownPid())
            m_frontmost.reset();
        return;
    }
    // What has no name yet is what the person came from, and is still to be told.
    if (m_isNaming && facts.pid == ownPid()) {
        m_frontmost = RunningApplication{ApplicationNames::fallback(facts.identity), facts.pid};
        emit applicationActivated(*m_frontmost);
        return;
    }
    ++m_activation;
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
    m_unnamed = {m_activation, facts.identity, facts.pid};
    if (!m_isNaming)
        nameFrontmost();
}

void X11Workspace::nameFrontmost()
{
    m_isNaming = true;
    findNames({m_unnamed.identity}, [this, unnamed = m_unnamed](const Names &names) {
        m_isNaming = false;
        if (m_unnamed.activation != m_activation || !m_frontmost)
            return;
        if (m_unnamed != unnamed) {
            nameFrontmost();
            return;
        }
        const RunningApplication application{names.value(unnamed.identity), unnamed.pid};
        if (m_frontmost->pid == application.pid)
            m_frontmost = application;
        emit applicationActivated(application);
    });
}

QFuture<QList<RunningApplication>> X11Workspace::runningApplications()
{
    const auto survey = std::make_shared<Survey>();
    survey->promise.start();
    m_connection.readProperty(m_connection.root(), "_NET_CLIENT_LIST", maximumWindows * sizeof(xcb_window_t),
                              [self = QPointer(this), survey](const QByteArray &value) {
                                  if (self)
                                      self->windowsAnnounced(value, survey);
                              });
    return survey->promise.future();
}

void X11Workspace::windowsAnnounced(const QByteArray &windows, const std::shared_ptr<Survey> &survey)
{
    const QList<quint32> announced = numbers(windows);
    survey->unread = announced.size();
    if (announced.isEmpty())
        tell(*survey, {});
    for (const xcb_window_t window : announced) {
        readWindow(window, [self = QPointer(this), survey](const WindowFacts &facts) {
            if (self)
                self->windowRead(facts, survey);
        });
    }
}

void X11Workspace::windowRead(const WindowFacts &facts, const std::shared_ptr<Survey> &survey)
{
    const bool isKnown = std::any_of(survey->windows.cbegin(), survey->windows.cend(),
                                     [&](const WindowFacts &other) { return other.pid == facts.pid; });
    if (facts.isInTaskList && facts.pid && !isKnown && survey->windows.size() < maximumApplications)
        survey->windows.append(facts);
    if (--survey->unread == 0)
        windowsRead(survey);
}

void X11Workspace::windowsRead(const std::shared_ptr<Survey> &survey)
{
    Names known;
    QList<WindowIdentity> unknown;
    for (const WindowFacts &window : std::as_const(survey->windows)) {
        const auto name = m_knownNames.constFind(window.identity);
        if (name != m_knownNames.constEnd())
            known.insert(window.identity, *name);
        else if (!unknown.contains(window.identity))
            unknown.append(window.identity);
    }
    if (unknown.isEmpty()) {
        tell(*survey, known);
        return;
    }
    findNames(unknown, [survey, known](const Names &found) {
        Names names = known;
        names.insert(found);
        tell(*survey, names);
    });
}

void X11Workspace::tell(Survey &survey, const Names &names)
{
    QList<RunningApplication> applications;
    for (const WindowFacts &window : std::as_const(survey.windows))
        applications.append({names.value(window.identity), window.pid});
    survey.promise.addResult(applications);
    survey.promise.finish();
}

void X11Workspace::findNames(const QList<WindowIdentity> &identities, const NamesHandler &handler)
{
    // The destructor waits for the search, so that `this` and the names outlive it.
    startInBackground(m_nameSearch, [this, identities, handler] {
        Names names = m_names.find(identities);
        for (const WindowIdentity &identity : identities) {
            if (!names.contains(identity))
                names.insert(identity, ApplicationNames::fallback(identity));
        }
        QMetaObject::invokeMethod(
            this,
            [this, names, handler] {
                remember(names);
                handler(names);
            },
            Qt::QueuedConnection);
    });
}

void X11Workspace::remember(const Names &names)
{
    if (m_knownNames.size() + names.size() > maximumKnownNames)
        m_knownNames.clear();
    m_knownNames.insert(names);
}

} // namespace keyvora
