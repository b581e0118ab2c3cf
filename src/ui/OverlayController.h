// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace keyvora {

/// What the buttons of the overlay do.
class OverlayController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    OverlayController(std::function<void()> toggleOverlay, std::function<void()> showMainWindow);

    /// Hides the overlay, or shows it.
    Q_INVOKABLE void toggle();
    /// Hides the overlay, then shows the main window.
    Q_INVOKABLE void openLibrary();

private:
    std::function<void()> m_toggleOverlay;
    std::function<void()> m_showMainWindow;
};

} // namespace keyvora
