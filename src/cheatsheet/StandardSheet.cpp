// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/StandardSheet.h"

#include "cheatsheet/PrintKeyCaps.h"
#include "cheatsheet/Typesetter.h"
#include "model/Localization.h"
#include "platform/ForeignText.h"
#include "platform/MakersDomain.h"

#include <algorithm>
#include <cmath>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal pagePadding = 28;
constexpr qreal partSpacing = 18;
constexpr qreal signSize = 22;
constexpr qreal nameSpacing = 8;
constexpr qreal ruleHeight = 1;
constexpr qreal columnSpacing = 12;
constexpr qreal rowSpacing = 10;
constexpr qreal cellPadding = 7;
constexpr qreal cellSpacing = 8;
constexpr qreal cellRadius = 6;
/// Below this a title is not narrowed for the sake of the keys beside it; these are broken into rows then.
constexpr qreal leastTitleWidth = 88;
constexpr qsizetype longestTitle = 200;

constexpr TextStyle nameStyle{.size = 18, .weight = QFont::Bold};
constexpr TextStyle headingStyle{.size = 11};
constexpr TextStyle titleStyle{.size = 9, .weight = QFont::Medium};
constexpr TextStyle footerStyle{.size = 9};

constexpr qreal headingOpacity = 0.6;
constexpr qreal ruleOpacity = 0.2;
constexpr qreal cellOpacity = 0.22;
constexpr qreal footerOpacity = 0.45;

/// A title with its keys, laid out but for its place.
struct Cell
{
    QList<SheetLine> title;
    PrintKeyCaps caps;

    [[nodiscard]] qreal titleHeight() const
    {
        return static_cast<qreal>(title.size()) * titleStyle.lineHeight();
    }
    [[nodiscard]] qreal height() const
    {
        return std::max(titleHeight(), caps.size().height()) + 2 * cellPadding;
    }
};

/// Builds a page from its top to its bottom.
class StandardSheetLayout
{
public:
    StandardSheetLayout(int width, Typesetter &typesetter)
        : m_pageWidth(width)
        , m_width(width - 2 * pagePadding)
        , m_typesetter(typesetter)
    {
    }

    SheetPage page(const QList<Shortcut> &shortcuts)
    {
        addHeader();
        m_y += partSpacing;
        m_elements.rules.append({QRectF(pagePadding, m_y, m_width, ruleHeight), ruleOpacity});
        m_y += ruleHeight + partSpacing;
        if (!shortcuts.isEmpty()) {
            addGrid(shortcuts);
            m_y += partSpacing;
        }
        addFooter();
        return {
            .size = {m_pageWidth, static_cast<int>(std::ceil(m_y + pagePadding))},
            .elements = m_elements,
        };
    }

private:
    void addCentred(const SheetLine &line, qreal x, qreal middle, qreal opacity)
    {
        m_elements.texts.append(m_typesetter.centred(line, x, middle, opacity));
    }

    void addHeader()
    {
        const qreal height = std::max(signSize, nameStyle.lineHeight());
        const qreal middle = m_y + height / 2;
        m_elements.signs.append({pagePadding, middle - signSize / 2, signSize, signSize});
        const SheetLine name = m_typesetter.line(u"Keyvora"_s, nameStyle);
        addCentred(name, pagePadding + signSize + nameSpacing, middle, 1);
        const SheetLine heading = m_typesetter.line(standardSheetTitle(), headingStyle);
        addCentred(heading, pagePadding + m_width - heading.width, middle, headingOpacity);
        m_y += height;
    }

    void addGrid(const QList<Shortcut> &shortcuts)
    {
        const qreal cellWidth = (m_width - columnSpacing) / 2;
        for (qsizetype left = 0; left < shortcuts.size(); left += 2) {
            QList<Cell> row;
            qreal height = 0;
            for (qsizetype i = left; i < std::min(left + 2, shortcuts.size()); ++i) {
                row.append(makeCell(shortcuts.at(i), cellWidth));
                height = std::max(height, row.constLast().height());
            }
            if (left > 0)
                m_y += rowSpacing;
            qreal x = pagePadding;
            for (const Cell &cell : row) {
                addCell(cell, QRectF(x, m_y, cellWidth, height));
                x += cellWidth + columnSpacing;
            }
            m_y += height;
        }
    }

    Cell makeCell(const Shortcut &shortcut, qreal cellWidth)
    {
        const QString title = displayableForeignText(shortcut.title, longestTitle);
        const qreal available = cellWidth - 2 * cellPadding - cellSpacing;
        const qreal least = std::min(leastTitleWidth, m_typesetter.line(title, titleStyle).width);
        PrintKeyCaps caps(shortcut.keys, false, available - least, m_typesetter);
        return {m_typesetter.wrapped(title, titleStyle, available - caps.size().width()), caps};
    }

    void addCell(const Cell &cell, const QRectF &rect)
    {
        m_elements.outlines.append({rect, cellRadius, cellOpacity});
        qreal middle = rect.center().y() - (cell.titleHeight() - titleStyle.lineHeight()) / 2;
        for (const SheetLine &line : cell.title) {
            addCentred(line, rect.left() + cellPadding, middle, 1);
            middle += titleStyle.lineHeight();
        }
        const QSizeF caps = cell.caps.size();
        m_elements += cell.caps.elements(
            {rect.right() - cellPadding - caps.width(), rect.center().y() - caps.height() / 2},
            Qt::AlignRight);
    }

    void addFooter()
    {
        const QString text =
            Localization::shared().text(u"Vytvořeno aplikací Keyvora — "_s, u"Made with Keyvora — "_s) +
            makersDomain();
        const SheetLine line = m_typesetter.fitted(text, footerStyle, m_width);
        addCentred(line, pagePadding, m_y + footerStyle.lineHeight() / 2, footerOpacity);
        m_y += footerStyle.lineHeight();
    }

    int m_pageWidth;
    qreal m_width;
    Typesetter &m_typesetter;
    qreal m_y = pagePadding;
    SheetElements m_elements;
};

} // namespace

QString standardSheetTitle()
{
    return Localization::shared().text(u"Nejdůležitější klávesové zkratky"_s,
                                       u"Essential Keyboard Shortcuts"_s);
}

SheetPage standardSheet(const QList<Shortcut> &shortcuts, int width, Typesetter &typesetter)
{
    return StandardSheetLayout(width, typesetter).page(shortcuts);
}

} // namespace keyvora
