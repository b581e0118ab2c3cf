// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/FloatingWindow.h"
#include "ui/PanelPlacement.h"
#include "ui/PanelReclick.h"

namespace keyvora {

/// The window of the tray icon's panel. Stands beside the icon, has the focus, and closes when it loses it.
class PanelWindow : public FloatingWindow
{
    Q_OBJECT

public:
    /// The theme and the compositor outlive the window.
    PanelWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor,
                PanelReclick::Clock clock = &std::chrono::steady_clock::now);

    /// A click on the icon: opens the panel beside it, or closes it when it is open. The position is the
    /// click's, null where it is not known; the token is what the desktop gave for coming to the front, or
    /// empty.
    void toggle(QPoint click, const QString &activationToken, const Activation &activate);

signals:
    /// It opens now.
    void opening();

private:
    void open(QPoint click, const QString &activationToken, const Activation &activate);
    void place();
    void followFocus();

    PanelReclick m_reclick;
    PanelAnchor m_anchor;
};

} // namespace keyvora
