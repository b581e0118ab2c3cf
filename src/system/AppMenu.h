// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"

#include <QObject>

namespace keyvora {

/// The main menu. Its texts stay in the language of the moment in which it was installed, however the
/// language of the interface changes while the window is open.
class AppMenu : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool czech READ isCzech NOTIFY installed)

public:
    using QObject::QObject;

    [[nodiscard]] bool isCzech() const { return m_language == AppLanguage::Czech; }

    /// Builds the menu anew in the current language; called each time the main window is shown.
    void install();

signals:
    void installed();
    /// A person chose to end the program.
    void quitRequested();

private:
    AppLanguage m_language = AppLanguage::English;
};

} // namespace keyvora
