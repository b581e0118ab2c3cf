// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/TextStyle.h"

#include <QGlyphRun>
#include <QList>
#include <QString>

namespace keyvora {

/// One line of text, ready to be drawn: which glyphs of which fonts stand where.
struct SheetLine
{
    QString text;
    TextStyle style;
    qreal width = 0;       ///< points
    QList<QGlyphRun> runs; ///< positions in points from the beginning of the baseline
};

} // namespace keyvora
