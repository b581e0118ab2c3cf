// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "system/UserInterface.h"
#include "ui/CheatSheets.h"
#include "ui/CustomShortcuts.h"
#include "ui/KeyReader.h"
#include "ui/Learning.h"
#include "ui/NoticeController.h"
#include "ui/OverlayController.h"
#include "ui/PanelController.h"
#include "ui/Settings.h"
#include "ui/SidebarModel.h"
#include "ui/ToolkitTexts.h"
#include "ui/TrustController.h"

#include <QQmlEngine>
#include <QTimer>

#include <chrono>
#include <memory>

class QQuickItem;

namespace keyvora {

class CornerWindow;
class MainView;
class PanelWindow;
class WindowFrame;

/// The user interface in QML, drawn by the software renderer.
class QmlUserInterface : public UserInterface
{
public:
    /// How long a closed main window stays as it was left.
    static constexpr std::chrono::milliseconds keptTime = std::chrono::seconds(30);

    explicit QmlUserInterface(const Context &context, std::chrono::milliseconds mainWindowKept = keptTime);
    ~QmlUserInterface() override;

    void prepareMainWindow() override;
    void showMainWindow(const QString &activationToken) override;
    void togglePanel(QPoint position, const QString &activationToken) override;
    void showOverlay() override;
    void hideOverlay() override;
    [[nodiscard]] bool isOverlayVisible() const override;
    void showSuggestion() override;
    void askForTrust() override;

private:
    /// Made at the first call.
    QObject *theme();
    /// The bare window, without QML.
    void makeMainView();
    void makeMainWindow();
    void discardMainWindow();
    /// Of a new main window, which also goes to where the person was in the one before.
    void followContent(QQuickItem *content);
    void makePanel();
    void makeOverlay();
    void makeNotice();
    void keepOverlayBelowPanel();
    void keepNoticeBelowOverlay();
    void followAppearance();

    Context m_context;
    QQmlEngine m_engine;
    ToolkitTexts m_toolkitTexts;
    QObject *m_theme = nullptr; ///< owned by the engine
    SidebarModel m_sections;
    Learning m_learning;
    CheatSheets m_cheatSheets;
    Settings m_settings;
    CustomShortcuts m_customShortcuts;
    KeyReader m_keyReader;
    PanelController m_panelController;
    OverlayController m_overlayController;
    NoticeController m_noticeController;
    TrustController m_trustController;
    std::unique_ptr<MainView> m_mainWindow;
    std::unique_ptr<WindowFrame> m_mainWindowFrame;
    QTimer m_discardTimer;
    QVariant m_leftPlace; ///< in the content of the main window that was discarded
    std::unique_ptr<PanelWindow> m_panel;
    std::unique_ptr<CornerWindow> m_overlay;
    std::unique_ptr<CornerWindow> m_notice;
};

} // namespace keyvora
