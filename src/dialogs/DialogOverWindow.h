// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QDialog;
class QWindow;

namespace keyvora {

/// Shows a dialog that belongs to the window, which takes no input until it is closed, and returns at once.
/// The dialog is deleted when it closes, and is rejected when the window is hidden or goes. Without a window
/// it stands on its own.
void showOverWindow(QDialog &dialog, QWindow *window);

/// Where the user's documents are: the home folder, where there is none for them.
QString documentsFolder();

} // namespace keyvora
