// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace keyvora {

/// What the buttons of the tray icon's panel do.
class PanelController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    PanelController(std::function<void()> toggleOverlay, std::function<void()> showMainWindow,
                    std::function<void()> quit);

    /// The panel opens: it starts afresh.
    void present();
    /// Shows the overlay, or hides it. The panel stays.
    Q_INVOKABLE void toggleOverlay();
    /// Closes the panel, then shows the main window.
    Q_INVOKABLE void openLibrary();
    /// Ends the program.
    Q_INVOKABLE void quit();
    /// Closes the panel.
    Q_INVOKABLE void dismiss();

signals:
    void presented();
    void dismissed();

private:
    std::function<void()> m_toggleOverlay;
    std::function<void()> m_showMainWindow;
    std::function<void()> m_quit;
};

} // namespace keyvora
