// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace keyvora {

Q_NAMESPACE

/// The languages that the interface speaks.
enum class AppLanguage : quint8 {
    Czech,
    English,
};
Q_ENUM_NS(AppLanguage)

/// All languages in the order of display.
inline constexpr std::array allLanguages{AppLanguage::Czech, AppLanguage::English};

/// The stored name of a language: "cs" or "en".
QString rawValue(AppLanguage language);

/// The language with exactly this stored name, or nothing.
std::optional<AppLanguage> languageFromRawValue(const QString &rawValue);

/// The language for a user's ordered list of preferred languages ("cs-CZ", "en-US", …). Only the first entry
/// counts: Czech when it begins with "cs", otherwise English.
AppLanguage systemPreferredLanguage(const QStringList &preferredLanguages);

} // namespace keyvora
