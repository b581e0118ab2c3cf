// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/KeyCaptureItem.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointerEvent>
#include <QQuickWindow>
#include <QStyleHints>

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Elsewhere the toolkit only warns that it cannot.
bool canGrab()
{
    return QGuiApplication::platformName() == "xcb"_L1;
}

bool isPlainEscape(const KeyPress &press)
{
    return press.plain == "Esc"_L1 && keyTokens(press).size() == 1;
}

} // namespace

KeyCaptureItem::KeyCaptureItem(QQuickItem *parent)
    : QQuickItem(parent)
    , m_escapeInterval(QGuiApplication::styleHints()->mouseDoubleClickInterval())
{
    setActiveFocusOnTab(true);
    m_escapeTimer.setSingleShot(true);
    m_patienceTimer.setSingleShot(true);
    connect(&m_escapeTimer, &QTimer::timeout, this, &KeyCaptureItem::deliverEscape);
    connect(&m_patienceTimer, &QTimer::timeout, this, &KeyCaptureItem::release);
}

KeyCaptureItem::~KeyCaptureItem()
{
    end();
}

bool KeyCaptureItem::event(QEvent *event)
{
    if (!m_isCapturing)
        return QQuickItem::event(event);
    switch (event->type()) {
    case QEvent::KeyPress:
        handleKey(*static_cast<QKeyEvent *>(event));
        [[fallthrough]];
    case QEvent::ShortcutOverride:
    case QEvent::KeyRelease:
        event->accept();
        return true;
    default:
        return QQuickItem::event(event);
    }
}

bool KeyCaptureItem::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        const auto *press = static_cast<QPointerEvent *>(event);
        if (press->pointCount() > 0 && !contains(mapFromScene(press->points().constFirst().position())))
            setFocus(false, Qt::MouseFocusReason);
    }
    return QQuickItem::eventFilter(watched, event);
}

void KeyCaptureItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange)
        followWindow(value.window);
    else if (change == ItemActiveFocusHasChanged || change == ItemVisibleHasChanged)
        followFocus();
}

void KeyCaptureItem::followWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    end();
    if (m_window) {
        disconnect(m_window, &QWindow::activeChanged, this, &KeyCaptureItem::followFocus);
        disconnect(m_window, &QWindow::visibleChanged, this, &KeyCaptureItem::followFocus);
    }
    m_window = window;
    if (m_window) {
        connect(m_window, &QWindow::activeChanged, this, &KeyCaptureItem::followFocus);
        connect(m_window, &QWindow::visibleChanged, this, &KeyCaptureItem::followFocus);
    }
    followFocus();
}

void KeyCaptureItem::followFocus()
{
    // What is hidden keeps the focus, and a window that is closed does not say that it is no longer active.
    if (m_window && m_window->isVisible() && m_window->isActive() && isVisible() && hasActiveFocus())
        begin();
    else
        end();
}

void KeyCaptureItem::begin()
{
    if (std::exchange(m_isCapturing, true))
        return;
    grab();
    m_window->installEventFilter(this);
    m_patienceTimer.start(m_patience);
    emit capturingChanged();
}

void KeyCaptureItem::end()
{
    if (!std::exchange(m_isCapturing, false))
        return;
    m_patienceTimer.stop();
    m_escapeTimer.stop();
    m_escape.reset();
    m_wasEscape = false;
    if (m_window) {
        m_window->removeEventFilter(this);
        if (std::exchange(m_hasGrab, false))
            m_window->setKeyboardGrabEnabled(false);
    }
    emit capturingChanged();
}

void KeyCaptureItem::release()
{
    setFocus(false, Qt::OtherFocusReason);
    emit released();
}

void KeyCaptureItem::grab()
{
    // Fails as long as somebody else has the keyboard.
    m_hasGrab = m_hasGrab || (canGrab() && m_window->setKeyboardGrabEnabled(true));
}

void KeyCaptureItem::handleKey(const QKeyEvent &event)
{
    grab();
    m_patienceTimer.start(m_patience);
    if (event.isAutoRepeat() || m_reader == nullptr)
        return;
    const std::optional<KeyPress> press = m_reader->read(event);
    if (press && isPlainEscape(*press)) {
        handleEscape(*press);
        return;
    }
    m_wasEscape = false;
    deliverEscape();
    if (press)
        emit pressed(*press);
}

void KeyCaptureItem::handleEscape(const KeyPress &press)
{
    if (m_wasEscape) {
        release();
        return;
    }
    m_wasEscape = true;
    m_escape = press;
    m_escapeTimer.start(m_escapeInterval);
}

void KeyCaptureItem::deliverEscape()
{
    m_escapeTimer.stop();
    if (const auto escape = std::exchange(m_escape, std::nullopt))
        emit pressed(*escape);
}

} // namespace keyvora
