// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/Localized.h"

#include "model/KeyCapLabel.h"
#include "model/Localization.h"
#include "ui/CategorySymbols.h"

namespace keyvora {

Localized::Localized(QObject *parent)
    : QObject(parent)
{
    connect(&Localization::shared(), &Localization::languageChanged, this, &Localized::languageChanged);
}

bool Localized::isCzech() const
{
    return Localization::shared().language() == AppLanguage::Czech;
}

void Localized::setCzech(bool czech)
{
    Localization::shared().setLanguage(czech ? AppLanguage::Czech : AppLanguage::English);
}

QString Localized::keyCapLabel(const QString &token, [[maybe_unused]] bool czech) const
{
    return keyvora::keyCapLabel(token);
}

QString Localized::shownKeys(const QStringList &tokens, [[maybe_unused]] bool czech) const
{
    QStringList labels;
    for (const QString &token : tokens)
        labels.append(keyvora::keyCapLabel(token));
    return labels.join(u' ');
}

QString Localized::spokenKeys(const QStringList &tokens, [[maybe_unused]] bool czech) const
{
    QStringList words;
    for (const QString &token : tokens)
        words.append(spokenKeyName(token));
    return words.join(u' ');
}

QString Localized::categoryName(int category, bool czech) const
{
    const auto position = static_cast<size_t>(category);
    return position < allCategories.size()
               ? displayName(allCategories[position], czech ? AppLanguage::Czech : AppLanguage::English)
               : QString();
}

QString Localized::categorySymbol(int category) const
{
    const auto position = static_cast<size_t>(category);
    return position < allCategories.size() ? keyvora::categorySymbol(allCategories[position]) : QString();
}

} // namespace keyvora
