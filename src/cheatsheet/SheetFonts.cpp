// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/SheetFonts.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

const QStringList &SheetFonts::families()
{
    static const QStringList all{u"Inter"_s, u"DejaVu Sans"_s};
    return all;
}

QFont SheetFonts::font(qsizetype family, QFont::Weight weight)
{
    QStringList order = families();
    order.move(family, 0);
    QFont font;
    font.setFamilies(order);
    font.setPixelSize(DesignSize);
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRawFont SheetFonts::rawFont(qsizetype family, QFont::Weight weight)
{
    QRawFont &rawFont = m_rawFonts[{family, weight}];
    if (!rawFont.isValid())
        rawFont = QRawFont::fromFont(font(family, weight));
    return rawFont;
}

} // namespace keyvora
