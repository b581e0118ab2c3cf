// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/FloatingWindow.h"

#include "platform/Compositor.h"

#include <QQuickItem>

namespace keyvora {

FloatingWindow::FloatingWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor,
                               Qt::WindowFlags flags)
    : KeyvoraView(engine, theme)
    , m_compositor(compositor)
{
    setFlags(flags | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeViewToRootObject);
    connect(&m_compositor, &Compositor::isRunningChanged, this, &FloatingWindow::followCompositor);
}

void FloatingWindow::fitContent()
{
    followCompositor();
    resize(rootObject()->size().toSize());
}

void FloatingWindow::followCompositor()
{
    rootObject()->setProperty("isRounded", m_compositor.isRunning());
}

} // namespace keyvora
