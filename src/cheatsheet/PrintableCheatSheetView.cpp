// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintableCheatSheetView.h"

#include "cheatsheet/SheetPainter.h"
#include "cheatsheet/StandardSheet.h"
#include "cheatsheet/Typesetter.h"
#include "cheatsheet/WalletCard.h"
#include "model/Localization.h"
#include "model/ShortcutLibrary.h"

namespace keyvora {

namespace {

SheetPage layOut(const QList<Shortcut> &shortcuts, CheatSheetSize size)
{
    Typesetter typesetter;
    switch (size) {
    case CheatSheetSize::wallet:
        return walletCard(ShortcutLibrary::all(Localization::shared().language()), paperSize(size),
                          typesetter);
    case CheatSheetSize::a4:
    case CheatSheetSize::usLetter:
        return standardSheet(shortcuts, paperSize(size).width(), typesetter);
    }
    Q_UNREACHABLE();
}

} // namespace

PrintableCheatSheetView::PrintableCheatSheetView(const QList<Shortcut> &shortcuts, CheatSheetSize size)
    : m_page(layOut(shortcuts, size))
{
}

void PrintableCheatSheetView::paint(QPainter &painter) const
{
    paintSheet(painter, m_page.elements);
}

} // namespace keyvora
