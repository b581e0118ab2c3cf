// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/CheatSheetSize.h"
#include "cheatsheet/SheetPage.h"
#include "model/Shortcut.h"

class QPainter;

namespace keyvora {

/// A cheat sheet as a page, in the interface language that was current when it was made. The one drawing for
/// the file, the printer and the screen.
class PrintableCheatSheetView
{
public:
    /// A sheet shows exactly these shortcuts; a card shows its own few from the built-in catalog instead.
    PrintableCheatSheetView(const QList<Shortcut> &shortcuts, CheatSheetSize size);

    /// The laid-out size, in whole points.
    [[nodiscard]] QSize size() const { return m_page.size; }

    [[nodiscard]] const SheetElements &elements() const { return m_page.elements; }

    /// Draws the page with its upper left corner at the origin, one point a unit. Paints no paper.
    void paint(QPainter &painter) const;

private:
    SheetPage m_page;
};

} // namespace keyvora
