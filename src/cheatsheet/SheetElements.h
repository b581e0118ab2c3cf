// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetLine.h"

#include <QList>
#include <QPointF>
#include <QRectF>

namespace keyvora {

struct SheetText
{
    QPointF baseline; ///< where the line begins
    SheetLine line;
    qreal opacity = 1;
};

/// A rounded rectangle, drawn with a line of one point just inside its edge.
struct SheetOutline
{
    QRectF rect;
    qreal radius = 0;
    qreal opacity = 1;
};

/// A filled rectangle.
struct SheetRule
{
    QRectF rect;
    qreal opacity = 1;
};

/// What a page is made of. All is black; positions are points from the page's upper left corner.
struct SheetElements
{
    QList<SheetText> texts; ///< in the order of reading
    QList<SheetOutline> outlines;
    QList<SheetRule> rules;
    QList<QRectF> signs; ///< where the program's own sign stands

    SheetElements &operator+=(const SheetElements &more)
    {
        texts += more.texts;
        outlines += more.outlines;
        rules += more.rules;
        signs += more.signs;
        return *this;
    }
};

} // namespace keyvora
