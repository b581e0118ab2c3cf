// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/CheatSheetSize.h"

#include "model/Localization.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString rawValue(CheatSheetSize size)
{
    switch (size) {
    case CheatSheetSize::wallet:
        return u"wallet"_s;
    case CheatSheetSize::a4:
        return u"a4"_s;
    case CheatSheetSize::usLetter:
        return u"usLetter"_s;
    }
    Q_UNREACHABLE();
}

QString label(CheatSheetSize size)
{
    switch (size) {
    case CheatSheetSize::wallet:
        return Localization::shared().text(u"Peněženka"_s, u"Wallet"_s);
    case CheatSheetSize::a4:
        return u"A4"_s;
    case CheatSheetSize::usLetter:
        return u"US Letter"_s;
    }
    Q_UNREACHABLE();
}

QString detail(CheatSheetSize size)
{
    const Localization &localization = Localization::shared();
    switch (size) {
    case CheatSheetSize::wallet:
        return localization.text(u"Kapesní karta, nejdůležitějších pár zkratek."_s,
                                 u"Pocket-sized card, a handful of essentials."_s);
    case CheatSheetSize::a4:
        return localization.text(u"Celá knihovna, jedna stránka na nástěnku."_s,
                                 u"The full library, one page for the wall."_s);
    case CheatSheetSize::usLetter:
        return localization.text(u"Celá knihovna, formát US Letter."_s,
                                 u"The full library, US Letter format."_s);
    }
    Q_UNREACHABLE();
}

QSize paperSize(CheatSheetSize size)
{
    switch (size) {
    case CheatSheetSize::wallet:
        return {243, 153};
    case CheatSheetSize::a4:
        return {595, 842};
    case CheatSheetSize::usLetter:
        return {612, 792};
    }
    Q_UNREACHABLE();
}

} // namespace keyvora
