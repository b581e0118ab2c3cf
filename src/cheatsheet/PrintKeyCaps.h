// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetElements.h"
#include "cheatsheet/Typesetter.h"

#include <QSizeF>
#include <QStringList>

namespace keyvora {

/// The keys of one shortcut as they are printed: a row of caps. One that is wider than it may be is broken,
/// before a step of a sequence where that is possible.
class PrintKeyCaps
{
public:
    /// `compact` is for the card; `maximumWidth` in points.
    PrintKeyCaps(const QStringList &keys, bool compact, qreal maximumWidth, Typesetter &typesetter);

    /// What a key's cap says.
    static QString label(const QString &token);

    /// In points.
    [[nodiscard]] QSizeF size() const;

    /// The caps with the upper left corner here, each row against the left edge, or against the right one.
    [[nodiscard]] SheetElements elements(QPointF corner, Qt::AlignmentFlag alignment) const;

private:
    struct Measures
    {
        qreal spacing;
        TextStyle label;
        TextStyle step;
        qreal padding;
        qreal minimumWidth;
        qreal radius;
        qreal height;
    };
    struct Piece
    {
        SheetLine text;
        bool isStep = false;
        qreal width = 0;
        qreal capHeight = 0;
    };
    using Row = QList<Piece>;

    static const Measures &measures(bool compact);
    static Row pieces(const QStringList &keys, bool compact, qreal maximumWidth, Typesetter &typesetter);
    [[nodiscard]] qreal widthOf(const Row &row) const;
    void breakIntoRows(const Row &pieces, qreal maximumWidth);
    [[nodiscard]] SheetElements rowElements(const Row &row, QPointF corner) const;

    const Measures *m_measures; ///< never null
    QList<Row> m_rows;
};

} // namespace keyvora
