// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Shortcut.h"

#include "model/CanonicalText.h"
#include "model/Localization.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct CategoryName
{
    Shortcut::Category category;
    QString czech; ///< also the stored name
    QString english;
};

const std::array<CategoryName, allCategories.size()> &categoryNames()
{
    using enum Shortcut::Category;
    static const std::array<CategoryName, allCategories.size()> names{{
        {zaklady, u"Základy"_s, u"Basics"_s},
        {text, u"Text"_s, u"Text"_s},
        {okna, u"Okna a aplikace"_s, u"Windows & Apps"_s},
        {finder, u"Finder"_s, u"Finder"_s},
        {snimky, u"Snímky obrazovky"_s, u"Screenshots"_s},
        {prohlizec, u"Prohlížeč"_s, u"Browser"_s},
        {profi, u"Profesionální nástroje"_s, u"Pro Tools"_s},
    }};
    return names;
}

const CategoryName &namesOf(Shortcut::Category category)
{
    return categoryNames().at(static_cast<size_t>(category));
}

bool canonicallyEqualLists(const QStringList &left, const QStringList &right)
{
    return std::ranges::equal(left, right, canonicallyEqual);
}

size_t canonicalListHash(const QStringList &texts, size_t seed)
{
    size_t hash = ::qHash(texts.size(), seed);
    for (const QString &text : texts)
        hash = canonicalHash(text, hash);
    return hash;
}

std::optional<QString> textField(const QJsonObject &object, QLatin1StringView name)
{
    const QJsonValue value = object.value(name);
    if (!value.isString())
        return std::nullopt;
    return value.toString();
}

std::optional<QStringList> textListField(const QJsonObject &object, QLatin1StringView name)
{
    const QJsonValue value = object.value(name);
    if (!value.isArray())
        return std::nullopt;
    const QJsonArray array = value.toArray();
    QStringList texts;
    texts.reserve(array.size());
    for (const QJsonValue element : array) {
        if (!element.isString())
            return std::nullopt;
        texts.append(element.toString());
    }
    return texts;
}

} // namespace

bool operator==(const Shortcut &left, const Shortcut &right)
{
    return canonicallyEqual(left.id, right.id) && canonicallyEqual(left.title, right.title) &&
           canonicallyEqualLists(left.keys, right.keys) && left.category == right.category &&
           canonicallyEqualLists(left.apps, right.apps) && canonicallyEqual(left.detail, right.detail);
}

size_t qHash(const Shortcut &shortcut, size_t seed)
{
    size_t hash = canonicalHash(shortcut.id, seed);
    hash = canonicalHash(shortcut.title, hash);
    hash = canonicalListHash(shortcut.keys, hash);
    hash = ::qHash(rawValue(shortcut.category), hash);
    hash = canonicalListHash(shortcut.apps, hash);
    return canonicalHash(shortcut.detail, hash);
}

QString rawValue(Shortcut::Category category)
{
    return namesOf(category).czech;
}

std::optional<Shortcut::Category> categoryFromRawValue(const QString &rawValue)
{
    const auto &names = categoryNames();
    const auto found = std::ranges::find_if(
        names, [&](const CategoryName &name) { return canonicallyEqual(name.czech, rawValue); });
    if (found == names.end())
        return std::nullopt;
    return found->category;
}

QString displayName(Shortcut::Category category)
{
    return displayName(category, Localization::shared().language());
}

QString displayName(Shortcut::Category category, AppLanguage language)
{
    const CategoryName &names = namesOf(category);
    return language == AppLanguage::Czech ? names.czech : names.english;
}

QString headerText(const Shortcut &shortcut)
{
    QString category = displayName(shortcut.category);
    if (shortcut.apps.size() == 1 && shortcut.apps.first() != rawValue(shortcut.category))
        return category + u" · "_s + shortcut.apps.first();
    return category;
}

QJsonObject toJson(const Shortcut &shortcut)
{
    return {
        {"id"_L1, shortcut.id},
        {"title"_L1, shortcut.title},
        {"keys"_L1, QJsonArray::fromStringList(shortcut.keys)},
        {"category"_L1, rawValue(shortcut.category)},
        {"apps"_L1, QJsonArray::fromStringList(shortcut.apps)},
        {"detail"_L1, shortcut.detail},
    };
}

std::optional<Shortcut> shortcutFromJson(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    const QJsonObject object = json.toObject();
    const auto id = textField(object, "id"_L1);
    const auto title = textField(object, "title"_L1);
    const auto keys = textListField(object, "keys"_L1);
    const auto categoryName = textField(object, "category"_L1);
    const auto apps = textListField(object, "apps"_L1);
    const auto detail = textField(object, "detail"_L1);
    if (!id || !title || !keys || !categoryName || !apps || !detail)
        return std::nullopt;
    const auto category = categoryFromRawValue(*categoryName);
    if (!category)
        return std::nullopt;
    return Shortcut{*id, *title, *keys, *category, *apps, *detail};
}

QByteArray encodeShortcuts(const QList<Shortcut> &shortcuts)
{
    QJsonArray array;
    for (const Shortcut &shortcut : shortcuts)
        array.append(toJson(shortcut));
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::optional<QList<Shortcut>> decodeShortcuts(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return std::nullopt;
    const QJsonArray array = document.array();
    QList<Shortcut> shortcuts;
    shortcuts.reserve(array.size());
    for (const QJsonValue element : array) {
        const auto shortcut = shortcutFromJson(element);
        if (!shortcut)
            return std::nullopt;
        shortcuts.append(*shortcut);
    }
    return shortcuts;
}

QList<Shortcut> uniqued(const QList<Shortcut> &shortcuts)
{
    QSet<Shortcut> seen;
    QList<Shortcut> result;
    for (const Shortcut &shortcut : shortcuts) {
        if (seen.contains(shortcut))
            continue;
        seen.insert(shortcut);
        result.append(shortcut);
    }
    return result;
}

} // namespace keyvora
