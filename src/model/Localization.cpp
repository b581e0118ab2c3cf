// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Localization.h"

#include "model/Defaults.h"
#include "model/DefaultsKeys.h"

namespace keyvora {

namespace {

Localization *sharedInstance = nullptr;

AppLanguage startingLanguage(const Defaults &defaults, const QStringList &preferredLanguages)
{
    const auto stored = languageFromRawValue(defaults.text(DefaultsKeys::appLanguage).value_or(QString()));
    return stored.value_or(systemPreferredLanguage(preferredLanguages));
}

} // namespace

Localization::Localization(Defaults &defaults, const QStringList &preferredLanguages)
    : m_defaults(defaults)
    , m_language(startingLanguage(defaults, preferredLanguages))
{
    Q_ASSERT(sharedInstance == nullptr);
    sharedInstance = this;
}

Localization::~Localization()
{
    sharedInstance = nullptr;
}

Localization &Localization::shared()
{
    Q_ASSERT(sharedInstance != nullptr);
    return *sharedInstance;
}

QString Localization::text(const QString &czech, const QString &english) const
{
    return m_language == AppLanguage::Czech ? czech : english;
}

void Localization::setLanguage(AppLanguage language)
{
    const bool changes = language != m_language;
    m_language = language;
    m_defaults.setText(DefaultsKeys::appLanguage, rawValue(language));
    if (changes)
        emit languageChanged(language);
}

} // namespace keyvora
