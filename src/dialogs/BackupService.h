// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QWindow;

namespace keyvora {

class AppModel;

/// Takes the user's own data into a file and back, through the desktop's dialogs over a window. Main thread
/// only; files are read and written in the background.
class BackupService
{
public:
    /// Told the outcome once, on the main thread, later than the call; never, when the model goes before.
    using Done = std::function<void(bool)>;

    // Both return at once. The outcome is false when the dialog is cancelled or its window closes, too. The
    // service may go meanwhile.

    /// Saves a backup. True when the file was written; an existing file is replaced as a whole or stays. No
    /// dialog comes when there is more than a backup can hold.
    void exportBackup(AppModel &model, QWindow *window, Done done) const;

    /// Merges a backup into the model, as a whole or not at all. True when the file was read and merged.
    void importFile(AppModel &model, QWindow *window, Done done) const;
};

} // namespace keyvora
