// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Workspace.h"
#include "platform/linux/ApplicationNames.h"

#include <QHash>
#include <QPromise>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// Follows the active window, and knows the windows, that the window manager announces on the root window.
/// https://specifications.freedesktop.org/wm-spec/latest/
class X11Workspace : public Workspace
{
    Q_OBJECT

public:
    /// Reads the present state at once. The connection outlives the workspace.
    X11Workspace(X11Connection &connection, ApplicationNames names, QObject *parent = nullptr);
    ~X11Workspace() override;

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return m_frontmost;
    }
    [[nodiscard]] QFuture<QList<RunningApplication>> runningApplications() override;

private:
    struct WindowFacts
    {
        WindowIdentity identity;
        std::optional<qint32> pid;
        bool isPartOfDesktop = false; ///< a panel or the desktop's background, which belong to no application
        bool isInTaskList = false;    ///< an ordinary window, which the task list shows
    };
    using FactsHandler = std::function<void(const WindowFacts &facts)>;
    using Names = QHash<WindowIdentity, QString>;
    using NamesHandler = std::function<void(const Names &names)>;

    /// The activation of an application whose name was not known.
    struct Unnamed
    {
        quint64 activation = 0;
        WindowIdentity identity;
        std::optional<qint32> pid;

        friend bool operator==(const Unnamed &, const Unnamed &) = default;
    };

    /// The windows of the task list, of which each process is to be told once.
    struct Survey
    {
        QPromise<QList<RunningApplication>> promise;
        QList<WindowFacts> windows;
        qsizetype unread = 0;
    };

    void handleEvent(const xcb_generic_event_t *event);
    /// Calls the handler when the window has told everything; a window that is gone tells nothing.
    void readWindow(xcb_window_t window, const FactsHandler &handler);
    void readActiveWindow();
    void activeWindowAnnounced(xcb_window_t window);
    void activeWindowRead(quint64 reading, const WindowFacts &facts);
    /// Finds the name of what is in front, or was before our own window. One at a time: windows can change
    /// faster than names are found, and the last one counts.
    void nameFrontmost();
    void windowsAnnounced(const QByteArray &windows, const std::shared_ptr<Survey> &survey);
    void windowRead(const WindowFacts &facts, const std::shared_ptr<Survey> &survey);
    void windowsRead(const std::shared_ptr<Survey> &survey);
    static void tell(Survey &survey, const Names &names);
    /// Calls the handler with the names of these, found on another thread.
    void findNames(const QList<WindowIdentity> &identities, const NamesHandler &handler);
    void remember(const Names &names);

    X11Connection &m_connection;
    ApplicationNames m_names;
    Names m_knownNames;
    std::optional<RunningApplication> m_frontmost;
    bool m_isActiveWindowStale =
        false;                ///< another one was announced, and is asked for once all events are seen
    quint64 m_reading = 0;    ///< counts announcements, so that a late answer to an earlier one is dropped
    quint64 m_activation = 0; ///< counts what came to the front, so that a name found too late is dropped
    Unnamed m_unnamed;        ///< the last
    bool m_isNaming = false;
    QThreadPool m_nameSearch;
};

} // namespace keyvora
