// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "dialogs/DialogOverWindow.h"

#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QWindow>

namespace keyvora {

void showOverWindow(QDialog &dialog, QWindow *window)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    // The native window takes the owner, and is there only when asked for.
    dialog.winId();
    dialog.windowHandle()->setTransientParent(window);
    if (window != nullptr) {
        QObject::connect(window, &QObject::destroyed, &dialog, &QDialog::reject);
        QObject::connect(window, &QWindow::visibleChanged, &dialog, [&dialog](bool isVisible) {
            if (!isVisible)
                dialog.reject();
        });
    }
    dialog.open();
}

QString documentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace keyvora
