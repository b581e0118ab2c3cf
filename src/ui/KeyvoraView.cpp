// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/KeyvoraView.h"

#include "system/UnusedMemory.h"
#include "ui/PictureCache.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QQuickItem>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

KeyvoraView::KeyvoraView(QQmlEngine *engine, QObject *theme)
    : QQuickView(engine, nullptr)
    , m_theme(theme)
{
    setResizeMode(QQuickView::SizeRootObjectToView);
    connect(this, &QQuickWindow::activeFocusItemChanged, this, &KeyvoraView::restoreFocus,
            Qt::QueuedConnection);
}

void KeyvoraView::restoreFocus()
{
    // A popup that closes leaves the focus to nobody; the content still knows where it was. While another
    // window has the keyboard, a dialog over this one above all, nobody has the focus here, and an open popup
    // gets it back by itself.
    const QQuickItem *focused = activeFocusItem();
    const bool isNobodys = focused == nullptr || focused == contentItem();
    if (QGuiApplication::focusWindow() == this && isNobodys && rootObject() != nullptr)
        rootObject()->forceActiveFocus(Qt::PopupFocusReason);
}

void KeyvoraView::bringToFront(const QString &activationToken, const Activation &activate)
{
    // Where the toolkit looks for it on Wayland when a window asks to come to the front; it takes it out
    // again.
    if (!activationToken.isEmpty() && QGuiApplication::platformName().startsWith("wayland"_L1))
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    if (windowStates().testFlag(Qt::WindowMinimized))
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
    // Not `show`, after which no window is maximised any more.
    setVisible(true);
    raise();
    if (!activate(*this, activationToken))
        requestActivate();
}

void KeyvoraView::minimize()
{
    setWindowStates(windowStates() | Qt::WindowMinimized);
}

void KeyvoraView::hideEvent(QHideEvent *event)
{
    QQuickView::hideEvent(event);
    releaseResources();
    PictureCache::clear();
    engine()->collectGarbage();
    returnUnusedMemory();
}

bool KeyvoraView::event(QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        m_theme->setProperty("showsFocus", false);
    } else if (event->type() == QEvent::ShortcutOverride) {
        // Comes before every press of a key, also of one that is a shortcut of the window.
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_F10:
            m_theme->setProperty("showsFocus", true);
            break;
        default:
            break;
        }
    }
    return QQuickView::event(event);
}

} // namespace keyvora
