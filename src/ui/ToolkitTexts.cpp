// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/ToolkitTexts.h"

#include "model/Localization.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

ToolkitTexts::ToolkitTexts(QObject *parent)
    : QObject(parent)
{
    connect(&Localization::shared(), &Localization::languageChanged, this, &ToolkitTexts::followLanguage);
    followLanguage();
}

void ToolkitTexts::followLanguage()
{
    QCoreApplication::removeTranslator(&m_translator);
    // English is what the toolkit speaks by itself.
    const AppLanguage language = Localization::shared().language();
    if (language != AppLanguage::English &&
        m_translator.load(u"qtbase_"_s + rawValue(language),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_translator);
}

} // namespace keyvora
