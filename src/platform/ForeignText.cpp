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

/// The first part of a text, with spaces in the place of what would do harm. A little more than is kept, so
/// that white space cannot eat all of a padded name.
QString withoutHarm(const QString &text, qsizetype maximumLength)
{
    QString result = text.left(maximumLength * 4);
    for (QChar &character : result) {
        if (isHarmful(character))
            character = u' ';
    }
    return result;
}

QString limited(QString text, qsizetype maximumLength, bool isCut)
{
    if (text.size() <= maximumLength && !isCut)
        return text;
    text.truncate(maximumLength - 1);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text + u'…';
}

} // namespace

QString harmlessForeignText(const QString &text, qsizetype maximumLength)
{
    const QString result = withoutHarm(text, maximumLength);
    return limited(result.trimmed(), maximumLength, result.size() < text.size());
}

QString displayableForeignText(const QString &text, qsizetype maximumLength)
{
    const QString result = withoutHarm(text, maximumLength);
    return limited(result.simplified(), maximumLength, result.size() < text.size());
}

} // namespace keyvora
