// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/QmlUserInterface.h"

#include <QQuickWindow>

/// The library's one symbol; see `createUserInterfaceSymbol`.
extern "C" Q_DECL_EXPORT keyvora::UserInterface *
keyvoraCreateUserInterface(const keyvora::UserInterface::Context &context)
{
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    return new keyvora::QmlUserInterface(context);
}
