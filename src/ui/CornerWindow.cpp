// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CornerWindow.h"

#include "platform/Compositor.h"
#include "ui/PanelPlacement.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>

namespace keyvora {

CornerWindow::CornerWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor)
    : KeyvoraView(engine, theme)
    , m_compositor(compositor)
{
    // The window manager has no say in windows of this kind. Any other would lose the focus to it, or get
    // below full-screen windows, or stay on one workspace, with one window manager or another.
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeViewToRootObject);
    connect(this, &QWindow::widthChanged, this, &CornerWindow::place);
    connect(this, &QWindow::heightChanged, this, &CornerWindow::place);
    connect(&m_compositor, &Compositor::isRunningChanged, this, &CornerWindow::followCompositor);
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
    followCompositor();
    // The view follows its content only when the event loop runs again.
    resize(rootObject()->size().toSize());
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

void CornerWindow::followCompositor()
{
    rootObject()->setProperty("isRounded", m_compositor.isRunning());
}

} // namespace keyvora
