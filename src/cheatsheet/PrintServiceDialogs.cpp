// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The ways to the printer and into files, through the desktop's dialogs.

#include "cheatsheet/PaperPlacement.h"
#include "cheatsheet/PrintServer.h"
#include "cheatsheet/PrintService.h"
#include "cheatsheet/PrintableCheatSheetView.h"
#include "cheatsheet/StandardSheet.h"
#include "dialogs/DialogOverWindow.h"
#include "model/Localization.h"
#include "platform/AtomicFile.h"
#include "platform/InBackground.h"
#include "platform/WhenFinished.h"

#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QWindow>

#include <memory>
#include <tuple>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

void printPage(QPrinter &printer, const PrintableCheatSheetView &view)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return;
    // In points, from the corner of what the printer can print.
    const QSizeF paper = printer.pageRect(QPrinter::Point).size();
    painter.scale(printer.logicalDpiX() / 72.0, printer.logicalDpiY() / 72.0);
    painter.setTransform(placeOnPaper(view.size(), paper), true);
    view.paint(painter);
}

void openPrintDialog(const PrintableCheatSheetView &view, QWindow *window)
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(standardSheetTitle());
    printer->setCreator(u"Keyvora"_s);
    auto *dialog = new QPrintDialog(printer.get());
    // There is one page to print, and nothing is selected.
    dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // On this thread, though the print server may take its time: it owns the page's fonts, and another one
    // that let go of them last would leave the toolkit with those that are gone.
    QObject::connect(dialog, &QDialog::accepted, dialog, [printer, view] { printPage(*printer, view); });
    // The dialog refers to the printer for as long as it lives.
    QObject::connect(dialog, &QObject::destroyed, dialog, [printer] {});
    showOverWindow(*dialog, window);
}

} // namespace

void PrintService::print(CheatSheetSize size, const QList<Shortcut> &shortcuts, QWindow *window) const
{
    const PrintableCheatSheetView view(shortcuts, size);
    if (view.size().isEmpty())
        return;
    // The toolkit waits for the print server, which must not keep the program standing.
    whenFinished(isPrintServerResponsive(), window, [view, window](const QFuture<bool> &isResponsive) {
        if (resultOr(isResponsive, false))
            openPrintDialog(view, window);
    });
}

void PrintService::exportPDF(CheatSheetSize size, const QList<Shortcut> &shortcuts, QWindow *window) const
{
    const auto document = makePDF(size, shortcuts);
    if (!document)
        return;
    auto *dialog =
        new QFileDialog(nullptr, Localization::shared().text(u"Uložit jako PDF"_s, u"Save as PDF"_s));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDirectory(documentsFolder());
    dialog->setNameFilter(u"PDF (*.pdf)"_s);
    dialog->setDefaultSuffix(u"pdf"_s);
    dialog->selectFile(u"Keyvora-%1.pdf"_s.arg(rawValue(size)));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [bytes = *document](const QString &path) {
        // Disks can be slow, those behind a network very.
        startInBackground(*QThreadPool::globalInstance(),
                          [bytes, path] { std::ignore = replaceFile(path, bytes); });
    });
    showOverWindow(*dialog, window);
}

} // namespace keyvora
