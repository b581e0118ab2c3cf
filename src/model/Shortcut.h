// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace keyvora {

/// One keyboard shortcut: the record that the whole program passes around.
///
/// Two shortcuts are equal when all six fields are; texts compare by Unicode canonical equivalence, without
/// case folding. `qHash` agrees with that.
struct Shortcut
{
    /// The group that a shortcut belongs to. The enumerators are the stored Czech names without diacritics.
    enum class Category : quint8 {
        zaklady,   ///< basics
        text,      ///< moving and selecting in text
        okna,      ///< windows and applications
        finder,    ///< the file manager
        snimky,    ///< screenshots
        prohlizec, ///< web browsers
        profi,     ///< professional tools
    };

    QString id;    ///< stable slug; all user data is keyed by it
    QString title; ///< in the language that was current when the record was made
    /// One token per key cap, in the order shown: "⌘", "⌥", "⌃", "⇧", "Fn", a key, "→" between steps.
    QStringList keys;
    Category category = Category::zaklady;
    QStringList apps; ///< the applications' own names; empty means system-wide
    QString detail;   ///< one sentence

    friend bool operator==(const Shortcut &left, const Shortcut &right);
};

size_t qHash(const Shortcut &shortcut, size_t seed = 0);

/// All categories in the order of display.
inline constexpr std::array allCategories{
    Shortcut::Category::zaklady, Shortcut::Category::text,   Shortcut::Category::okna,
    Shortcut::Category::finder,  Shortcut::Category::snimky, Shortcut::Category::prohlizec,
    Shortcut::Category::profi,
};

/// The stored name of a category; Czech, and independent of the interface language.
QString rawValue(Shortcut::Category category);

/// The category with exactly this stored name, or nothing.
std::optional<Shortcut::Category> categoryFromRawValue(const QString &rawValue);

/// The category's name in the current interface language, or in a given one.
QString displayName(Shortcut::Category category);
QString displayName(Shortcut::Category category, AppLanguage language);

/// The line above a card's title: the category, and the application where the shortcut belongs to exactly one
/// whose name is not the category's stored name.
QString headerText(const Shortcut &shortcut);

/// The JSON object with the six fields of a shortcut.
QJsonObject toJson(const Shortcut &shortcut);

/// Reads what `toJson` wrote. Nothing when a field is missing, has a wrong type, or names no category;
/// unknown fields are ignored.
std::optional<Shortcut> shortcutFromJson(const QJsonValue &json);

/// UTF-8 JSON array of shortcuts, compact.
QByteArray encodeShortcuts(const QList<Shortcut> &shortcuts);

/// Reads what `encodeShortcuts` wrote; nothing when the bytes or any one record cannot be read.
std::optional<QList<Shortcut>> decodeShortcuts(const QByteArray &json);

/// The list without later records that equal an earlier one in all fields; the order stays.
QList<Shortcut> uniqued(const QList<Shortcut> &shortcuts);

} // namespace keyvora
