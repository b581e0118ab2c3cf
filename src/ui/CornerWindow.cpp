// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CornerWindow.h"

#include "ui/PanelPlacement.h"

#include <QGuiApplication>
#include <QScreen>

namespace keyvora {

CornerWindow::CornerWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor)
    // The window manager has no say in windows of this kind. Any other would lose the focus to it, or get
    // below full-screen windows, or stay on one workspace, with one window manager or another.
    : FloatingWindow(engine, theme, compositor, Qt::ToolTip | Qt::WindowDoesNotAcceptFocus)
{
    connect(this, &QWindow::widthChanged, this, &CornerWindow::place);
    connect(this, &QWindow::heightChanged, this, &CornerWindow::place);
    const auto followScreen = [this](const QScreen *screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, &CornerWindow::place);
    };
    for (const QScreen *screen : QGuiApplication::screens())
        followScreen(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, followScreen);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &CornerWindow::place);
}

void CornerWindow::present()
{
    fitContent();
    place();
    show();
    raise();
}

void CornerWindow::setOffset(int offset)
{
    m_offset = offset;
    place();
}

void CornerWindow::place()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (screen != nullptr)
        setPosition(cornerPosition(size(), m_offset, screen->availableGeometry()));
}

} // namespace keyvora
