// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>
#include <QStringMatcher>

namespace keyvora {

/// Asks of many texts whether they contain one text, ignoring case as the locale understands it (in Turkish
/// "I" belongs to "ı"), and taking composed and decomposed letters for the same. Diacritics count.
class ContainmentMatcher
{
public:
    ContainmentMatcher(const QString &needle, const QLocale &locale);

    [[nodiscard]] bool isContainedIn(const QString &text) const;

private:
    [[nodiscard]] QString prepared(const QString &text) const;

    QLocale m_locale;
    bool m_needsLocaleCase; ///< the locale's case rules differ from Unicode's
    QStringMatcher m_matcher;
};

/// The text without distinctions of case and diacritics: "Přiblížit" → "priblizit", "Łódź" → "lodz".
QString foldedForMatching(const QString &text, const QLocale &locale);

} // namespace keyvora
