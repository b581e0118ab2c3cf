// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Workspace.h"
#include "platform/linux/ApplicationNames.h"

#include <QHash>
#include <QThreadPool>

#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// Follows the active window that the window manager announces on the root window.
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

private:
    struct WindowFacts
    {
        WindowIdentity identity;
        std::optional<qint32> pid;
        bool isPartOfDesktop = false; ///< a panel or the desktop's background, which belong to no application
    };

    void handleEvent(const xcb_generic_event_t *event);
    void readActiveWindow();
    void readWindow(xcb_window_t window);
    void windowRead(quint64 reading, const WindowFacts &facts);
    void findName(quint64 activation, const WindowIdentity &identity);
    void nameFound(quint64 activation, const WindowIdentity &identity, const QString &name);

    X11Connection &m_connection;
    ApplicationNames m_names;
    QHash<WindowIdentity, QString> m_knownNames;
    std::optional<RunningApplication> m_frontmost;
    quint64 m_reading = 0;    ///< counts announcements, so that a late answer to an earlier one is dropped
    quint64 m_activation = 0; ///< counts what came to the front, so that a name found too late is dropped
    QThreadPool m_nameSearch;
};

} // namespace keyvora
