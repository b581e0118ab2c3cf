// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppLanguage.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString rawValue(AppLanguage language)
{
    switch (language) {
    case AppLanguage::Czech:
        return u"cs"_s;
    case AppLanguage::English:
        return u"en"_s;
    }
    Q_UNREACHABLE();
}

std::optional<AppLanguage> languageFromRawValue(const QString &rawValue)
{
    for (const AppLanguage language : allLanguages) {
        if (keyvora::rawValue(language) == rawValue)
            return language;
    }
    return std::nullopt;
}

AppLanguage systemPreferredLanguage(const QStringList &preferredLanguages)
{
    const QString first = preferredLanguages.value(0, u"en"_s);
    return first.startsWith("cs"_L1) ? AppLanguage::Czech : AppLanguage::English;
}

} // namespace keyvora
