// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/WindowFrame.h"

#include "model/Defaults.h"

#include <QGuiApplication>
#include <QMargins>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <optional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto saveDelay = 400ms;
/// How much of a window's top must be on a screen so that a person can take hold of it.
constexpr QSize graspable(120, 24);

constexpr QLatin1StringView maximizedMark("maximized");

struct StoredFrame
{
    QRect frame; ///< position of the frame, size of what is in it; of a maximised window those before
    bool isMaximized = false;
};

std::optional<StoredFrame> parsedFrame(const QString &text)
{
    QStringList parts = text.split(u' ');
    const bool isMaximized = parts.size() == 5 && parts.last() == maximizedMark;
    if (isMaximized)
        parts.removeLast();
    if (parts.size() != 4)
        return std::nullopt;
    std::array<int, 4> numbers{};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        numbers[static_cast<size_t>(i)] = parts[i].toInt(&isNumber);
        constexpr int farAway = 100'000;
        if (!isNumber || std::abs(numbers[static_cast<size_t>(i)]) > farAway)
            return std::nullopt;
    }
    return StoredFrame{QRect(numbers[0], numbers[1], numbers[2], numbers[3]), isMaximized};
}

/// The screen on which a window with that frame can be taken hold of.
const QScreen *screenToGraspOn(const QRect &frame)
{
    const QRect titleBar(frame.topLeft(), QSize(frame.width(), graspable.height()));
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(screens, [&](const QScreen *screen) {
        const QRect shown = screen->availableGeometry() & titleBar;
        return shown.width() >= graspable.width() && shown.height() >= graspable.height() / 2;
    });
    return found == screens.end() ? nullptr : *found;
}

/// What window managers put around a window, which they do not tell before they show it.
QMargins decorationOf(const QWindow &window)
{
    constexpr QMargins usual(4, 36, 4, 4);
    const QMargins known = window.frameMargins();
    return known.isNull() ? usual : known;
}

} // namespace

WindowFrame::WindowFrame(QWindow &window, Defaults &store, QLatin1StringView name)
    : m_window(window)
    , m_store(store)
    , m_name(name)
{
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(saveDelay);
    connect(&m_saveTimer, &QTimer::timeout, this, &WindowFrame::save);
    const auto saveSoon = [this] {
        if (m_window.isVisible())
            m_saveTimer.start();
    };
    connect(&window, &QWindow::xChanged, this, saveSoon);
    connect(&window, &QWindow::yChanged, this, saveSoon);
    connect(&window, &QWindow::widthChanged, this, saveSoon);
    connect(&window, &QWindow::heightChanged, this, saveSoon);
    connect(&window, &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            savePending();
    });
}

WindowFrame::~WindowFrame()
{
    savePending();
}

void WindowFrame::restore(QSize initialSize, QSize minimumSize)
{
    const auto stored = parsedFrame(m_store.text(m_name).value_or(QString()));
    const QScreen *storedScreen = stored ? screenToGraspOn(stored->frame) : nullptr;
    const QScreen *screen = storedScreen != nullptr ? storedScreen : QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect available = screen->availableGeometry();
    const QMargins decoration = decorationOf(m_window);
    const QSize most = available.size().shrunkBy(decoration);

    const QSize minimum = minimumSize.boundedTo(most);
    const QSize wanted = (stored ? stored->frame.size() : initialSize).expandedTo(minimum);
    const QSize size = wanted.boundedTo(most);
    QRect middle(QPoint(), size);
    middle.moveCenter(available.center());
    const QSize whole = size.grownBy(decoration);
    QPoint position(std::min(middle.x(), available.x() + available.width() - whole.width()),
                    std::min(middle.y(), available.y() + available.height() - whole.height()));
    if (storedScreen != nullptr) {
        position = stored->frame.topLeft();
        // A window that was cut is shown as a whole; others may be beyond an edge, where they were put.
        if (size.width() < wanted.width())
            position.setX(available.left());
        if (size.height() < wanted.height())
            position.setY(available.top());
    }
    m_window.setMinimumSize(minimum);
    // In this order: resizing takes the position for that of the content.
    m_window.resize(size);
    m_window.setFramePosition(position);
    if (stored && stored->isMaximized)
        m_window.setWindowStates(Qt::WindowMaximized);
}

void WindowFrame::savePending()
{
    if (m_saveTimer.isActive())
        save();
}

void WindowFrame::save()
{
    m_saveTimer.stop();
    const Qt::WindowStates states = m_window.windowStates();
    if (states == Qt::WindowNoState) {
        store(QRect(m_window.framePosition(), m_window.size()), false);
    } else if (states == Qt::WindowMaximized) {
        // Where it goes once it is not maximised any more.
        const auto stored = parsedFrame(m_store.text(m_name).value_or(QString()));
        store(stored ? stored->frame : QRect(m_window.framePosition(), m_window.minimumSize()), true);
    }
}

void WindowFrame::store(const QRect &frame, bool isMaximized)
{
    QString text = u"%1 %2 %3 %4"_s.arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
    if (isMaximized)
        text += u' ' + maximizedMark;
    m_store.setText(m_name, text);
}

} // namespace keyvora
