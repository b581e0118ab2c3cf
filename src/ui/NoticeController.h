// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace keyvora {

class AppModel;

/// How long the notice of a suggestion stays, and where a click on it leads.
class NoticeController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// The model outlives the controller.
    NoticeController(AppModel &model, std::function<void()> showMainWindow);

    /// Starts the notice's time anew.
    void present();
    /// Closes the notice, then shows the main window at the suggested shortcut.
    Q_INVOKABLE void openShortcut();
    /// Closes the notice.
    Q_INVOKABLE void dismiss();

signals:
    void presented();
    void dismissed();

private:
    AppModel &m_model;
    std::function<void()> m_showMainWindow;
};

} // namespace keyvora
