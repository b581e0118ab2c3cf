// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/TextMatching.h"

#include <array>
#include <utility>

namespace keyvora {

namespace {

bool hasOwnCaseRules(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Turkish:
    case QLocale::Azerbaijani:
    case QLocale::Lithuanian:
        return true;
    default:
        return false;
    }
}

/// Latin letters whose stroke or hook is part of the code point, so that decomposition does not remove it.
QChar withoutStroke(QChar letter)
{
    static constexpr std::array<std::pair<char16_t, char16_t>, 7> letters{{
        {u'ł', u'l'},
        {u'đ', u'd'},
        {u'ø', u'o'},
        {u'ħ', u'h'},
        {u'ŧ', u't'},
        {u'ƀ', u'b'},
        {u'ɨ', u'i'},
    }};
    for (const auto &[stroked, plain] : letters) {
        if (letter == stroked)
            return plain;
    }
    return letter;
}

} // namespace

ContainmentMatcher::ContainmentMatcher(const QString &needle, const QLocale &locale)
    : m_locale(locale)
    , m_needsLocaleCase(hasOwnCaseRules(m_locale))
    , m_matcher(prepared(needle), Qt::CaseInsensitive)
{
}

bool ContainmentMatcher::isContainedIn(const QString &text) const
{
    return m_matcher.indexIn(prepared(text)) >= 0;
}

QString ContainmentMatcher::prepared(const QString &text) const
{
    return (m_needsLocaleCase ? m_locale.toLower(text) : text).normalized(QString::NormalizationForm_C);
}

QString foldedForMatching(const QString &text, const QLocale &locale)
{
    const QString decomposed = locale.toLower(text).normalized(QString::NormalizationForm_D);
    QString folded;
    folded.reserve(decomposed.size());
    for (const QChar letter : decomposed) {
        if (letter.category() != QChar::Mark_NonSpacing)
            folded.append(withoutStroke(letter));
    }
    return folded;
}

} // namespace keyvora
