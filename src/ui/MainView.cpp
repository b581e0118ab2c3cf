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
    connect(this, &QQuickWindow::frameSwapped, this, &MainView::readContent,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void MainView::prepare()
{
    m_reading = readInBackground(engine(), u"WindowShell"_s);
}

void MainView::load(const QVariantMap &contentProperties)
{
    m_contentProperties = contentProperties;
    setSource(qmlFile(u"WindowShell"_s));
    m_reading.reset();
}

QSize MainView::leastSize() const
{
    return {rootObject()->property("minimumWidth").toInt(), rootObject()->property("minimumHeight").toInt()};
}

QQuickItem *MainView::content()
{
    makeContent();
    return madeContent();
}

QQuickItem *MainView::madeContent() const
{
    return rootObject() == nullptr ? nullptr : rootObject()->property("content").value<QQuickItem *>();
}

bool MainView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        makeContent();
        break;
    default:
        break;
    }
    return KeyvoraView::event(event);
}

void MainView::readContent()
{
    if (hasContent())
        return;
    m_reading = readInBackground(engine(), u"ContentView"_s);
    findFonts(*theme());
    if (m_reading->isLoading())
        connect(m_reading.get(), &QQmlComponent::statusChanged, this, &MainView::makeContent,
                Qt::QueuedConnection);
    else
        makeContent();
}

void MainView::makeContent()
{
    if (hasContent())
        return;
    QMetaObject::invokeMethod(rootObject(), "present", Q_ARG(QVariant, m_contentProperties));
    m_contentProperties.clear();
    m_reading.reset();
    emit contentMade();
}

} // namespace keyvora
