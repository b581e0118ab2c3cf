// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/QmlUserInterface.h"

#include "model/DefaultsKeys.h"
#include "model/FirstTime.h"
#include "platform/Appearance.h"
#include "system/AppMenu.h"
#include "system/ApplicationIcon.h"
#include "ui/ImageProviders.h"
#include "ui/KeyvoraView.h"
#include "ui/PanelPlacement.h"
#include "ui/WindowFrame.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize initialWindowSize(960, 640);
constexpr QSize minimumWindowSize(840, 560);

QUrl component(const QString &name)
{
    return QUrl(u"qrc:/qt/qml/Keyvora/"_s + name + u".qml"_s);
}

/// The theme lives in QML, which alone can name it.
QObject *themeOf(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Keyvora\nQtObject { readonly property QtObject theme: Theme }",
                      {});
    const std::unique_ptr<QObject> holder(component.create());
    return holder->property("theme").value<QObject *>();
}

} // namespace

QmlUserInterface::QmlUserInterface(const Context &context)
    : m_context(context)
    , m_sections(context.model)
    , m_panelController(context.showMainWindow, context.quit)
{
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.addImageProvider(u"symbol"_s, new SymbolImageProvider);
    m_engine.addImageProvider(u"glow"_s, new GlowImageProvider);
    m_engine.addImageProvider(u"shadow"_s, new ShadowImageProvider);
    m_theme = themeOf(m_engine);
    followAppearance();
    QObject::connect(&m_context.appearance, &Appearance::preferencesChanged, m_theme,
                     [this] { followAppearance(); });
}

QmlUserInterface::~QmlUserInterface() = default;

void QmlUserInterface::followAppearance()
{
    const Appearance::Preferences preferences = m_context.appearance.preferences();
    m_theme->setProperty("dark", preferences.isDark);
    m_theme->setProperty("highContrast", preferences.highContrast);
    m_theme->setProperty("reducedMotion", preferences.reducedMotion);
}

void QmlUserInterface::showMainWindow(const QString &activationToken)
{
    if (!m_mainWindow)
        makeMainWindow();
    // Window managers place a window that comes back by where its frame was asked to be.
    if (!m_mainWindow->isVisible())
        m_mainWindowFrame->restore(initialWindowSize);
    m_mainWindow->bringToFront(activationToken);
}

void QmlUserInterface::makeMainWindow()
{
    m_mainWindow = std::make_unique<KeyvoraView>(&m_engine, m_theme);
    m_mainWindow->setTitle(u"Keyvora"_s);
    m_mainWindow->setIcon(applicationIcon());
    m_mainWindow->setInitialProperties({
        {u"appModel"_s, QVariant::fromValue(&m_context.model)},
        {u"sections"_s, QVariant::fromValue(&m_sections)},
        {u"appMenu"_s, QVariant::fromValue(&m_context.menu)},
        {u"isFirstTime"_s, isFirstTime(m_context.defaults, DefaultsKeys::hasSeenOnboarding)},
    });
    m_mainWindow->setSource(component(u"ContentView"_s));
    QQuickItem *content = m_mainWindow->rootObject();
    const QSize contentMinimum(content->property("minimumWidth").toInt(),
                               content->property("minimumHeight").toInt());
    m_mainWindow->setMinimumSize(minimumWindowSize.expandedTo(contentMinimum));
    m_mainWindowFrame = std::make_unique<WindowFrame>(*m_mainWindow, m_context.windowFrames, "MainWindow"_L1);
}

void QmlUserInterface::togglePanel(QPoint position)
{
    if (!m_panel)
        makePanel();
    if (m_panel->isVisible()) {
        m_panel->hide();
        return;
    }
    const QPoint anchor = position.isNull() ? QCursor::pos() : position;
    const QScreen *screen = QGuiApplication::screenAt(anchor);
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    m_panel->setPosition(panelPosition(m_panel->size(), anchor, screen->availableGeometry()));
    m_panel->bringToFront({});
}

void QmlUserInterface::makePanel()
{
    m_panel = std::make_unique<KeyvoraView>(&m_engine, m_theme);
    m_panel->setTitle(u"Keyvora"_s);
    m_panel->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_panel->setResizeMode(QQuickView::SizeViewToRootObject);
    m_panel->setInitialProperties({{u"controller"_s, QVariant::fromValue(&m_panelController)}});
    m_panel->setSource(component(u"MenuBarView"_s));
    QObject::connect(&m_panelController, &PanelController::dismissed, m_panel.get(), &QWindow::hide);
    QObject::connect(m_panel.get(), &QWindow::activeChanged, m_panel.get(), [this] {
        if (!m_panel->isActive())
            m_panel->hide();
    });
}

} // namespace keyvora
