// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/CheatSheetSize.h"
#include "cheatsheet/DocumentClock.h"
#include "model/Shortcut.h"

#include <QByteArray>

#include <optional>

class QWindow;

namespace keyvora {

/// Turns cheat sheets into documents, and those into files and print jobs. Main thread only; files are
/// written in the background.
class PrintService
{
public:
    explicit PrintService(DocumentClock clock);

    /// The sheet as a PDF document of one page, exactly as large as the sheet is laid out; nothing when it
    /// cannot be drawn. The same sheet made at the same time is the same bytes.
    ///
    /// A page higher than the 14400 units that readers accept counts in larger units; it stays one page of
    /// the same size.
    [[nodiscard]] std::optional<QByteArray> makePDF(CheatSheetSize size,
                                                    const QList<Shortcut> &shortcuts) const;

    // Both show the desktop's dialog over the window and return at once. What comes of it, nobody is told: a
    // page that cannot be drawn, a dialog that is cancelled, and what cannot be printed or written end
    // silently.

    /// Prints the sheet on one page: as large as it is or, where the paper is too small, as large as fits,
    /// turned where that is larger.
    void print(CheatSheetSize size, const QList<Shortcut> &shortcuts, QWindow *window) const;

    /// Saves the sheet as a PDF document. An existing file is replaced as a whole or stays as it is.
    void exportPDF(CheatSheetSize size, const QList<Shortcut> &shortcuts, QWindow *window) const;

private:
    DocumentClock m_clock;
};

} // namespace keyvora
