// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/QmlUserInterface.h"

#include <QQuickWindow>

/// What the program looks up in the library; see `createUserInterfaceSymbol`.
extern "C" Q_DECL_EXPORT keyvora::UserInterface *
keyvoraCreateUserInterface(const keyvora::UserInterface::Context &context)
{
    // Whatever the environment says: some of the items paint with it alone.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // Milliseconds for which the toolkit holds back what has changed, in case that more does; what changes at
    // once is drawn at once anyway.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    return new keyvora::QmlUserInterface(context);
}
