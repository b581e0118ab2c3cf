// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace keyvora {

namespace {

/// The main screen is the first.
QList<ScreenArea> screenAreas()
{
    QList<ScreenArea> areas;
    for (const QScreen *screen : QGuiApplication::screens())
        areas.append({screen->geometry(), screen->availableGeometry()});
    return areas;
}

} // namespace

PanelWindow::PanelWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor,
                         PanelReclick::Clock clock)
    : FloatingWindow(engine, theme, compositor, Qt::Tool)
    , m_reclick(std::move(clock))
{
    connect(this, &QWindow::heightChanged, this, &PanelWindow::place);
    connect(this, &QWindow::activeChanged, this, &PanelWindow::followFocus);
}

void PanelWindow::toggle(QPoint click, const QString &activationToken, const Activation &activate)
{
    if (isVisible())
        hide();
    else if (!m_reclick.takesLostFocus(QCursor::pos()))
        open(click, activationToken, activate);
}

void PanelWindow::open(QPoint click, const QString &activationToken, const Activation &activate)
{
    emit opening();
    // Hosts count in the screen's own pixels; where the toolkit does not, the pointer is where the click was.
    m_anchor = panelAnchor(qApp->devicePixelRatio() == 1 ? click : QPoint(), QCursor::pos(), screenAreas());
    fitContent();
    place();
    bringToFront(activationToken, activate);
}

void PanelWindow::place()
{
    setPosition(panelPosition(size(), m_anchor));
}

void PanelWindow::followFocus()
{
    if (isActive() || !isVisible())
        return;
    m_reclick.panelLostFocus(QCursor::pos());
    hide();
}

} // namespace keyvora
