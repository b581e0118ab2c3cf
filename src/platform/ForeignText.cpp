// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/ForeignText.h"

namespace keyvora {

namespace {

bool isHarmful(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format: {
        // Direction marks, embeddings, overrides and isolates; joiners are part of ordinary words and emoji.
        const char16_t unit = character.unicode();
        return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
               (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF;
    }
    default:
        return false;
    }
}

} // namespace

QString displayableForeignText(const QString &text, qsizetype maximumLength)
{
    // A little more than is kept, so that folding white space cannot eat the whole text of a padded name.
    QString result = text.left(maximumLength * 4);
    for (QChar &character : result) {
        if (isHarmful(character))
            character = u' ';
    }
    const bool isCut = result.size() < text.size();
    result = result.simplified();
    if (result.size() <= maximumLength && !isCut)
        return result;
    result.truncate(maximumLength - 1);
    if (!result.isEmpty() && result.back().isHighSurrogate())
        result.chop(1);
    return result + u'…';
}

} // namespace keyvora
