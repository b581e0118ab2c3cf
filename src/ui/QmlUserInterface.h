// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "system/UserInterface.h"
#include "ui/PanelController.h"
#include "ui/SidebarModel.h"

#include <QQmlEngine>

#include <memory>

namespace keyvora {

class KeyvoraView;
class WindowFrame;

/// The user interface in QML, drawn by the software renderer unless the environment asks for another.
class QmlUserInterface : public UserInterface
{
public:
    explicit QmlUserInterface(const Context &context);
    ~QmlUserInterface() override;

    void showMainWindow(const QString &activationToken) override;
    void togglePanel(QPoint position) override;

private:
    void makeMainWindow();
    void makePanel();
    void followAppearance();

    Context m_context;
    QQmlEngine m_engine;
    QObject *m_theme = nullptr; ///< owned by the engine
    SidebarModel m_sections;
    PanelController m_panelController;
    std::unique_ptr<KeyvoraView> m_mainWindow;
    std::unique_ptr<WindowFrame> m_mainWindowFrame;
    std::unique_ptr<KeyvoraView> m_panel;
};

} // namespace keyvora
