// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/WalletCard.h"

#include "cheatsheet/PrintKeyCaps.h"
#include "cheatsheet/StickerList.h"
#include "cheatsheet/Typesetter.h"
#include "platform/ForeignText.h"
#include "platform/MakersDomain.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal padding = 11;
constexpr qreal partSpacing = 6;
constexpr qreal signSize = 10;
constexpr qreal nameSpacing = 4;
constexpr qreal ruleHeight = 0.75;
constexpr qreal columnSpacing = 10;
constexpr qreal rowSpacing = 9;
constexpr qreal cellSpacing = 2;
constexpr qreal smallestTitle = 0.6;
constexpr qsizetype longestTitle = 200;

constexpr TextStyle nameStyle{.size = 9, .weight = QFont::Bold};
constexpr TextStyle domainStyle{.size = 6};
constexpr TextStyle titleStyle{.size = 7.5, .weight = QFont::Medium};

constexpr qreal domainOpacity = 0.4;
constexpr qreal ruleOpacity = 0.25;

/// Gives the header's height.
qreal addHeader(SheetElements &elements, qreal width, Typesetter &typesetter)
{
    const qreal height = nameStyle.lineHeight();
    const qreal middle = padding + height / 2;
    const SheetLine name = typesetter.line(u"Keyvora"_s, nameStyle);
    const qreal nameLeft = padding + signSize + nameSpacing;
    const qreal left = width - (name.width + signSize + 2 * nameSpacing);
    const SheetLine domain = typesetter.fitted(makersDomain(), domainStyle, left);
    elements.signs.append({padding, middle - signSize / 2, signSize, signSize});
    elements.texts.append(typesetter.centred(name, nameLeft, middle, 1));
    elements.texts.append(typesetter.centred(domain, padding + width - domain.width, middle, domainOpacity));
    return height;
}

/// Gives the cell's height.
qreal addCell(SheetElements &elements, const Shortcut &shortcut, QPointF corner, qreal width,
              Typesetter &typesetter)
{
    const QString text = displayableForeignText(shortcut.title, longestTitle);
    const SheetLine title = typesetter.fitted(text, titleStyle, width, smallestTitle);
    elements.texts.append(typesetter.centred(title, corner.x(), corner.y() + titleStyle.lineHeight() / 2, 1));
    const qreal capsTop = titleStyle.lineHeight() + cellSpacing;
    const PrintKeyCaps caps(shortcut.keys, true, width, typesetter);
    elements += caps.elements(corner + QPointF(0, capsTop), Qt::AlignLeft);
    return capsTop + caps.size().height();
}

} // namespace

SheetPage walletCard(const QList<Shortcut> &catalog, QSize size, Typesetter &typesetter)
{
    SheetPage page{.size = size, .elements = {}};
    const qreal width = size.width() - 2 * padding;
    qreal y = padding + addHeader(page.elements, width, typesetter) + partSpacing;
    page.elements.rules.append({QRectF(padding, y, width, ruleHeight), ruleOpacity});
    y += ruleHeight + partSpacing;

    const QList<Shortcut> shortcuts = walletList(catalog);
    const qreal cellWidth = (width - columnSpacing) / 2;
    qreal rowHeight = 0;
    for (qsizetype i = 0; i < shortcuts.size(); ++i) {
        const bool isLeft = i % 2 == 0;
        if (isLeft && i > 0) {
            y += rowHeight + rowSpacing;
            rowHeight = 0;
        }
        const QPointF corner(isLeft ? padding : padding + cellWidth + columnSpacing, y);
        rowHeight =
            std::max(rowHeight, addCell(page.elements, shortcuts.at(i), corner, cellWidth, typesetter));
    }
    return page;
}

} // namespace keyvora
