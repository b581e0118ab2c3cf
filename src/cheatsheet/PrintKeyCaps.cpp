// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintKeyCaps.h"

#include "model/KeyCapLabel.h"
#include "model/KeySteps.h"
#include "platform/ForeignText.h"

#include <algorithm>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal outlineOpacity = 0.45;
constexpr qreal stepOpacity = 0.55;
constexpr qsizetype longestLabel = 40;

} // namespace

const PrintKeyCaps::Measures &PrintKeyCaps::measures(bool compact)
{
    static const Measures regular{
        .spacing = 4,
        .label = {.size = 10, .weight = QFont::DemiBold},
        .step = {.size = 9, .weight = QFont::DemiBold},
        .padding = 6,
        .minimumWidth = 20,
        .radius = 4,
        .height = 17,
    };
    static const Measures small{
        .spacing = 2.5,
        .label = {.size = 7, .weight = QFont::DemiBold},
        .step = {.size = 6.5, .weight = QFont::DemiBold},
        .padding = 4,
        .minimumWidth = 13,
        .radius = 3,
        .height = 11,
    };
    return compact ? small : regular;
}

PrintKeyCaps::PrintKeyCaps(const QStringList &keys, bool compact, qreal maximumWidth, Typesetter &typesetter)
    : m_measures(&measures(compact))
{
    breakIntoRows(pieces(keys, compact, maximumWidth, typesetter), maximumWidth);
}

QString PrintKeyCaps::label(const QString &token)
{
    return keyCapLabel(token);
}

QSizeF PrintKeyCaps::size() const
{
    if (m_rows.isEmpty())
        return {0, m_measures->height};
    qreal width = 0;
    for (const Row &row : m_rows)
        width = std::max(width, widthOf(row));
    const auto rows = static_cast<qreal>(m_rows.size());
    return {width, rows * m_measures->height + (rows - 1) * m_measures->spacing};
}

SheetElements PrintKeyCaps::elements(QPointF corner, Qt::AlignmentFlag alignment) const
{
    const qreal width = size().width();
    SheetElements elements;
    for (const Row &row : m_rows) {
        const qreal indent = alignment == Qt::AlignRight ? width - widthOf(row) : 0;
        elements += rowElements(row, corner + QPointF(indent, 0));
        corner.ry() += m_measures->height + m_measures->spacing;
    }
    return elements;
}

PrintKeyCaps::Row PrintKeyCaps::pieces(const QStringList &keys, bool compact, qreal maximumWidth,
                                       Typesetter &typesetter)
{
    const Measures &measures = PrintKeyCaps::measures(compact);
    Row pieces;
    for (qsizetype index = 0; index < keys.size(); ++index) {
        if (isStepSeparator(keys, index)) {
            const SheetLine arrow = typesetter.line(u"→"_s, measures.step);
            pieces.append({arrow, true, arrow.width, typesetter.capHeight(measures.step)});
            continue;
        }
        const QString text = displayableForeignText(label(keys.at(index)), longestLabel);
        const SheetLine line = typesetter.fitted(text, measures.label, maximumWidth - 2 * measures.padding);
        const qreal width = std::max(measures.minimumWidth, line.width + 2 * measures.padding);
        pieces.append({line, false, width, typesetter.capHeight(measures.label)});
    }
    return pieces;
}

qreal PrintKeyCaps::widthOf(const Row &row) const
{
    qreal width = -m_measures->spacing;
    for (const Piece &piece : row)
        width += piece.width + m_measures->spacing;
    return std::max(0.0, width);
}

void PrintKeyCaps::breakIntoRows(const Row &pieces, qreal maximumWidth)
{
    Row row;
    const auto fits = [&](const Row &more) {
        return widthOf(row + more) <= maximumWidth;
    };
    const auto startRow = [&] {
        if (!row.isEmpty())
            m_rows.append(std::exchange(row, {}));
    };
    qsizetype start = 0;
    while (start < pieces.size()) {
        const auto isNextStep = [](const Piece &piece) {
            return piece.isStep;
        };
        const auto end = std::find_if(pieces.begin() + start + 1, pieces.end(), isNextStep);
        const Row step(pieces.begin() + start, end);
        if (!fits(step))
            startRow();
        for (const Piece &piece : step) {
            if (!fits({piece}))
                startRow();
            row.append(piece);
        }
        start = end - pieces.begin();
    }
    startRow();
}

SheetElements PrintKeyCaps::rowElements(const Row &row, QPointF corner) const
{
    SheetElements elements;
    for (const Piece &piece : row) {
        const QRectF rect(corner, QSizeF(piece.width, m_measures->height));
        if (!piece.isStep)
            elements.outlines.append({rect, m_measures->radius, outlineOpacity});
        elements.texts.append({
            .baseline = rect.center() + QPointF(-piece.text.width / 2, piece.capHeight / 2),
            .line = piece.text,
            .opacity = piece.isStep ? stepOpacity : 1,
        });
        corner.rx() += piece.width + m_measures->spacing;
    }
    return elements;
}

} // namespace keyvora
