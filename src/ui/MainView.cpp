// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/MainView.h"

#include "ui/QmlFile.h"

#include <QFont>
#include <QFontInfo>
#include <QQuickItem>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<QQmlComponent> readInBackground(QQmlEngine *engine, const QString &name)
{
    return std::make_unique<QQmlComponent>(engine, qmlFile(name), QQmlComponent::Asynchronous);
}

/// The first text in a font would wait for that.
void findFonts(const QObject &theme)
{
    for (const char *weight : {"regularWeight", "mediumWeight", "strongWeight"}) {
        QFont font;
        font.setWeight(static_cast<QFont::Weight>(theme.property(weight).toInt()));
        static_cast<void>(QFontInfo(font).exactMatch());
    }
}

} // namespace

MainView::MainView(QQmlEngine *engine)
    : KeyvoraView(engine)
{
    m_frames = connect(this, &QQuickWindow::frameSwapped, this, &MainView::readContent, Qt::QueuedConnection);
}

void MainView::prepare()
{
    m_reading = readInBackground(engine(), u"WindowGround"_s);
}

void MainView::load(const QVariantMap &contentProperties)
{
    m_contentProperties = contentProperties;
    setSource(qmlFile(u"WindowGround"_s));
    m_reading.reset();
}

QSize MainView::leastSize() const
{
    return {rootObject()->property("minimumWidth").toInt(), rootObject()->property("minimumHeight").toInt()};
}

QQuickItem *MainView::content() const
{
    return rootObject() == nullptr ? nullptr : rootObject()->property("content").value<QQuickItem *>();
}

bool MainView::hasUnseenSheet() const
{
    return !m_isContentSeen && content() != nullptr && content()->property("isInterrupted").toBool();
}

bool MainView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        makeContent();
        // Nobody answers a question before it is there to be read.
        if (hasUnseenSheet())
            return true;
        break;
    default:
        break;
    }
    return KeyvoraView::event(event);
}

void MainView::readContent()
{
    // A window that is closed again at once has its content made when it comes back.
    if (m_reading || content() != nullptr || !isVisible())
        return;
    m_reading = readInBackground(engine(), u"ContentView"_s);
    findFonts(*theme());
    if (m_reading->isLoading())
        connect(m_reading.get(), &QQmlComponent::statusChanged, this, &MainView::makeReadContent,
                Qt::QueuedConnection);
    else
        makeReadContent();
}

void MainView::makeReadContent()
{
    if (isVisible())
        makeContent();
    m_reading.reset();
}

void MainView::makeContent()
{
    if (content() != nullptr)
        return;
    QMetaObject::invokeMethod(rootObject(), "present", Q_ARG(QVariant, m_contentProperties));
    if (content() == nullptr)
        return;
    disconnect(m_frames);
    m_contentProperties.clear();
    connect(
        this, &QQuickWindow::frameSwapped, this, [this] { m_isContentSeen = true; },
        Qt::SingleShotConnection);
    emit contentMade(content());
}

} // namespace keyvora
