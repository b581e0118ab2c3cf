// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/QmlUserInterface.h"

#include "dialogs/BackupService.h"
#include "model/AppModel.h"
#include "model/DefaultsKeys.h"
#include "model/FirstTime.h"
#include "platform/Appearance.h"
#include "platform/Compositor.h"
#include "system/AppMenu.h"
#include "system/ApplicationIcon.h"
#include "system/UnusedMemory.h"
#include "ui/CornerWindow.h"
#include "ui/MainView.h"
#include "ui/PanelPlacement.h"
#include "ui/PanelWindow.h"
#include "ui/QmlFile.h"
#include "ui/WindowFrame.h"
#include "update/UpdateChecker.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize initialWindowSize(960, 640);
constexpr QSize minimumWindowSize(840, 560);
constexpr int noticeGap = 12; ///< between the overlay and the notice below it

/// The theme lives in QML, which alone can name it.
QObject *themeOf(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Keyvora\nQtObject { readonly property QtObject theme: Theme }",
                      {});
    const std::unique_ptr<QObject> holder(component.create());
    return holder->property("theme").value<QObject *>();
}

Settings::BackupCommands backupCommands(AppModel &model)
{
    const BackupService service;
    return {
        .save = [&model,
                 service](QWindow *window,
                          BackupService::Done done) { service.exportBackup(model, window, std::move(done)); },
        .load = [&model,
                 service](QWindow *window,
                          BackupService::Done done) { service.importFile(model, window, std::move(done)); },
    };
}

/// What the small windows show: a component that is given the model, and what its buttons do.
void setContent(QQuickView &view, const QString &name, AppModel &model, QObject &controller)
{
    view.setTitle(u"Keyvora"_s);
    view.setInitialProperties({
        {u"appModel"_s, QVariant::fromValue(&model)},
        {u"controller"_s, QVariant::fromValue(&controller)},
    });
    view.setSource(qmlFile(name));
}

/// Screen readers hear of an item that comes into being, but not of one whose window is shown again.
void announceAgain(const QQuickView &view)
{
    QAccessibleEvent shown(view.rootObject(), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace

QmlUserInterface::QmlUserInterface(const Context &context, std::chrono::milliseconds mainWindowKept)
    : m_context(context)
    , m_sections(context.model)
    , m_learning(context.model, context.defaults)
    , m_cheatSheets(context.model, PrintService(documentClock(context.environment)))
    , m_settings(context.model, context.accessibility, backupCommands(context.model))
    , m_customShortcuts(context.model)
    , m_keyReader(context.keyboardLayout)
    , m_panelController(context.toggleOverlay, context.showMainWindow, context.quit)
    , m_overlayController(context.toggleOverlay, context.showMainWindow)
    , m_noticeController(context.model,
                         [this] {
                             m_context.showMainWindow();
                             // The signal that tells it which card to show comes next, and once.
                             m_mainWindow->makeContent();
                         })
    , m_trustController(context.grantTrust)
{
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    QObject::connect(&m_context.appearance, &Appearance::preferencesChanged, &m_engine,
                     [this] { followAppearance(); });
    m_discardTimer.setSingleShot(true);
    m_discardTimer.setInterval(mainWindowKept);
    QObject::connect(&m_discardTimer, &QTimer::timeout, &m_engine, [this] { discardMainWindow(); });
}

QmlUserInterface::~QmlUserInterface() = default;

QObject *QmlUserInterface::theme()
{
    if (m_theme == nullptr) {
        m_theme = themeOf(m_engine);
        followAppearance();
    }
    return m_theme;
}

void QmlUserInterface::followAppearance()
{
    if (m_theme == nullptr)
        return;
    const Appearance::Preferences preferences = m_context.appearance.preferences();
    m_theme->setProperty("dark", preferences.isDark);
    m_theme->setProperty("highContrast", preferences.highContrast);
    m_theme->setProperty("reducedMotion", preferences.reducedMotion);
}

void QmlUserInterface::prepareMainWindow()
{
    if (m_mainWindow)
        return;
    makeMainView();
    m_mainWindow->prepare();
    m_mainWindow->create();
}

void QmlUserInterface::showMainWindow(const QString &activationToken)
{
    if (!m_mainWindow || m_mainWindow->rootObject() == nullptr)
        makeMainWindow();
    // Window managers place a window that comes back by where its frame was asked to be.
    if (!m_mainWindow->isVisible())
        m_mainWindowFrame->restore(initialWindowSize,
                                   minimumWindowSize.expandedTo(m_mainWindow->leastSize()));
    m_mainWindow->bringToFront(activationToken, m_context.activateWindow);
}

void QmlUserInterface::makeMainView()
{
    m_mainWindow = std::make_unique<MainView>(&m_engine);
    m_mainWindow->setTitle(u"Keyvora"_s);
    m_mainWindow->setIcon(applicationIcon());
}

void QmlUserInterface::makeMainWindow()
{
    if (!m_mainWindow)
        makeMainView();
    m_mainWindow->setTheme(theme());
    QObject::connect(m_mainWindow.get(), &MainView::contentMade, &m_engine,
                     [this](QQuickItem *content) { followContent(content); });
    m_mainWindow->load({
        {u"appModel"_s, QVariant::fromValue(&m_context.model)},
        {u"sections"_s, QVariant::fromValue(&m_sections)},
        {u"learning"_s, QVariant::fromValue(&m_learning)},
        {u"sheets"_s, QVariant::fromValue(&m_cheatSheets)},
        {u"settings"_s, QVariant::fromValue(&m_settings)},
        {u"customs"_s, QVariant::fromValue(&m_customShortcuts)},
        {u"appMenu"_s, QVariant::fromValue(&m_context.menu)},
        {u"trust"_s, QVariant::fromValue(&m_trustController)},
        {u"updates"_s, QVariant::fromValue(&m_context.updates)},
        {u"keyReader"_s, QVariant::fromValue(&m_keyReader)},
        {u"isFirstTime"_s, isFirstTime(m_context.defaults, DefaultsKeys::hasSeenOnboarding)},
    });
    m_mainWindowFrame = std::make_unique<WindowFrame>(*m_mainWindow, m_context.windowFrames, "MainWindow"_L1);
    QObject::connect(m_mainWindow.get(), &QWindow::visibleChanged, &m_discardTimer, [this](bool isVisible) {
        if (isVisible)
            m_discardTimer.stop();
        else
            m_discardTimer.start();
    });
}

void QmlUserInterface::followContent(QQuickItem *content)
{
    // It has greeted the person, the first time.
    rememberFirstTime(m_context.defaults, DefaultsKeys::hasSeenOnboarding);
    // The about window may have been open longer than a closed main window is kept.
    QObject::connect(content, SIGNAL(isInterruptedChanged()), &m_discardTimer, SLOT(start()));
    QObject::connect(content, SIGNAL(minimizeRequested()), m_mainWindow.get(), SLOT(minimize()));
    if (!m_leftPlace.isValid())
        return;
    // By its first frame everything has its size.
    QObject::connect(
        m_mainWindow.get(), &QQuickWindow::afterAnimating, content,
        [this, content] {
            QMetaObject::invokeMethod(content, "resume", Q_ARG(QVariant, std::exchange(m_leftPlace, {})));
        },
        Qt::SingleShotConnection);
}

void QmlUserInterface::discardMainWindow()
{
    if (!m_mainWindow || m_mainWindow->isVisible())
        return;
    if (QQuickItem *content = m_mainWindow->content()) {
        // What is begun in it waits for as long as it takes.
        if (content->property("isInterrupted").toBool())
            return;
        // One that was never drawn has not gone there itself.
        if (!m_leftPlace.isValid())
            QMetaObject::invokeMethod(content, "place", Q_RETURN_ARG(QVariant, m_leftPlace));
    }
    m_mainWindowFrame.reset();
    m_mainWindow.reset();
    m_engine.trimComponentCache();
    m_engine.collectGarbage();
    returnUnusedMemory();
}

void QmlUserInterface::togglePanel(QPoint position, const QString &activationToken)
{
    if (!m_panel)
        makePanel();
    m_panel->toggle(position, activationToken, m_context.activateWindow);
}

void QmlUserInterface::makePanel()
{
    m_panel = std::make_unique<PanelWindow>(&m_engine, theme(), m_context.compositor);
    setContent(*m_panel, u"MenuBarView"_s, m_context.model, m_panelController);
    QObject::connect(m_panel.get(), &PanelWindow::opening, &m_panelController, &PanelController::present);
    QObject::connect(&m_panelController, &PanelController::dismissed, m_panel.get(), &QWindow::hide);
    keepOverlayBelowPanel();
}

void QmlUserInterface::showOverlay()
{
    if (!m_overlay)
        makeOverlay();
    m_overlay->present();
}

void QmlUserInterface::hideOverlay()
{
    if (m_overlay)
        m_overlay->hide();
}

bool QmlUserInterface::isOverlayVisible() const
{
    return m_overlay && m_overlay->isVisible();
}

void QmlUserInterface::makeOverlay()
{
    m_overlay = std::make_unique<CornerWindow>(&m_engine, theme(), m_context.compositor);
    setContent(*m_overlay, u"ContextOverlayView"_s, m_context.model, m_overlayController);
    keepOverlayBelowPanel();
    keepNoticeBelowOverlay();
}

void QmlUserInterface::keepOverlayBelowPanel()
{
    if (!m_panel || !m_overlay)
        return;
    // The panel's button also hides the overlay, which no window manager can put below the panel.
    const auto place = [this] {
        const QScreen *screen = QGuiApplication::primaryScreen();
        if (screen == nullptr)
            return;
        m_overlay->setOffset(m_panel->isVisible() ? cornerOffsetBelow(m_overlay->size(), m_panel->geometry(),
                                                                      screen->availableGeometry())
                                                  : 0);
    };
    // The overlay goes before the panel does.
    QObject::connect(m_panel.get(), &QWindow::visibleChanged, m_overlay.get(), place);
    QObject::connect(m_panel.get(), &QWindow::xChanged, m_overlay.get(), place);
    QObject::connect(m_panel.get(), &QWindow::yChanged, m_overlay.get(), place);
    QObject::connect(m_panel.get(), &QWindow::heightChanged, m_overlay.get(), place);
    QObject::connect(m_overlay.get(), &QWindow::heightChanged, m_overlay.get(), place);
    place();
}

void QmlUserInterface::showSuggestion()
{
    if (m_context.model.suggestionId().isEmpty())
        return;
    if (!m_notice)
        makeNotice();
    else
        announceAgain(*m_notice);
    m_notice->present();
    m_noticeController.present();
}

void QmlUserInterface::makeNotice()
{
    m_notice = std::make_unique<CornerWindow>(&m_engine, theme(), m_context.compositor);
    setContent(*m_notice, u"SuggestionNotice"_s, m_context.model, m_noticeController);
    QObject::connect(&m_noticeController, &NoticeController::dismissed, m_notice.get(), &QWindow::hide);
    keepNoticeBelowOverlay();
}

void QmlUserInterface::keepNoticeBelowOverlay()
{
    if (!m_overlay || !m_notice)
        return;
    const auto place = [this] {
        m_notice->setOffset(m_overlay->isVisible() ? m_overlay->offset() + m_overlay->height() + noticeGap
                                                   : 0);
    };
    // The notice is the first to go.
    QObject::connect(m_overlay.get(), &QWindow::visibleChanged, m_notice.get(), place);
    QObject::connect(m_overlay.get(), &QWindow::heightChanged, m_notice.get(), place);
    QObject::connect(m_overlay.get(), &QWindow::yChanged, m_notice.get(), place);
    place();
}

void QmlUserInterface::askForTrust()
{
    m_context.showMainWindow();
    m_trustController.ask();
}

} // namespace keyvora
