// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Shortcut.h"

#include "unit/model/ModelPrinters.h"
#include "unit/model/Program.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

Shortcut copyShortcut()
{
    return {
        .id = u"copy"_s,
        .title = u"Kopírovat"_s,
        .keys = {u"⌘"_s, u"C"_s},
        .category = Shortcut::Category::zaklady,
        .apps = {},
        .detail = u"Zkopíruje vybraný text nebo soubor."_s,
    };
}

QByteArray copyJson()
{
    return R"({"id":"copy","title":"Kopírovat","keys":["⌘","C"],"category":"Základy","apps":[],)"
           R"("detail":"Zkopíruje vybraný text nebo soubor."})";
}

QJsonObject parsed(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

QString decomposed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_D);
}

} // namespace

TEST(ShortcutEquality, HoldsForEqualFields)
{
    EXPECT_EQ(copyShortcut(), copyShortcut());
    EXPECT_EQ(qHash(copyShortcut()), qHash(copyShortcut()));
}

TEST(ShortcutEquality, ComparesEachOfTheSixFields)
{
    Shortcut other = copyShortcut();
    other.id = u"copy-2"_s;
    EXPECT_NE(other, copyShortcut());

    other = copyShortcut();
    other.title = u"Copy"_s;
    EXPECT_NE(other, copyShortcut());

    other = copyShortcut();
    other.keys = {u"⌘"_s, u"X"_s};
    EXPECT_NE(other, copyShortcut());

    other = copyShortcut();
    other.category = Shortcut::Category::text;
    EXPECT_NE(other, copyShortcut());

    other = copyShortcut();
    other.apps = {u"Finder"_s};
    EXPECT_NE(other, copyShortcut());

    other = copyShortcut();
    other.detail = u"Jiný popis."_s;
    EXPECT_NE(other, copyShortcut());
}

TEST(ShortcutEquality, MindsTheOrderOfKeys)
{
    const Shortcut commandFirst = makeShortcut(u"lookup"_s, u"Look Up"_s, {u"⌘"_s, u"⌃"_s, u"D"_s});
    const Shortcut controlFirst = makeShortcut(u"lookup"_s, u"Look Up"_s, {u"⌃"_s, u"⌘"_s, u"D"_s});
    EXPECT_NE(commandFirst, controlFirst);
}

TEST(ShortcutEquality, MindsTheNumberAndOrderOfApplications)
{
    const auto inApplications = [](const QStringList &apps) {
        return makeShortcut(u"a"_s, {}, {}, apps);
    };
    EXPECT_NE(inApplications({u"Arc"_s, u"Safari"_s}), inApplications({u"Safari"_s, u"Arc"_s}));
    EXPECT_NE(inApplications({u"Arc"_s}), inApplications({u"Arc"_s, u"Arc"_s}));
}

TEST(ShortcutEquality, MindsCase)
{
    EXPECT_NE(makeShortcut(u"a"_s, u"Copy"_s), makeShortcut(u"a"_s, u"copy"_s));
    EXPECT_NE(makeShortcut(u"a"_s, {}, {u"C"_s}), makeShortcut(u"a"_s, {}, {u"c"_s}));
}

TEST(ShortcutEquality, TakesComposedAndDecomposedTextForTheSame)
{
    const QString title = u"Přiblížit"_s;
    ASSERT_NE(composed(title), decomposed(title));
    const Shortcut left =
        makeShortcut(composed(title), composed(title), {composed(title)}, {composed(title)}, composed(title));
    const Shortcut right = makeShortcut(decomposed(title), decomposed(title), {decomposed(title)},
                                        {decomposed(title)}, decomposed(title));
    EXPECT_EQ(left, right);
    EXPECT_EQ(qHash(left), qHash(right));
    EXPECT_EQ(qHash(left, 7), qHash(right, 7));
}

TEST(ShortcutEquality, TellsTextsFromTheSameTextsDividedOtherwise)
{
    const Shortcut oneKey = makeShortcut(u"a"_s, {}, {u"⌘C"_s});
    const Shortcut twoKeys = makeShortcut(u"a"_s, {}, {u"⌘"_s, u"C"_s});
    EXPECT_NE(oneKey, twoKeys);
    EXPECT_NE(makeShortcut(u"a"_s, {}, {u"C"_s}, {}), makeShortcut(u"a"_s, {}, {}, {u"C"_s}));
}

TEST(ShortcutHash, DependsOnEachField)
{
    const Shortcut shortcut = copyShortcut();
    QSet<size_t> hashes{qHash(shortcut)};
    for (int field = 0; field < 6; ++field) {
        Shortcut other = shortcut;
        switch (field) {
        case 0:
            other.id += u'x';
            break;
        case 1:
            other.title += u'x';
            break;
        case 2:
            other.keys.append(u"x"_s);
            break;
        case 3:
            other.category = Shortcut::Category::okna;
            break;
        case 4:
            other.apps.append(u"x"_s);
            break;
        default:
            other.detail += u'x';
        }
        hashes.insert(qHash(other));
    }
    EXPECT_EQ(hashes.size(), 7);
}

TEST(ShortcutJson, IsReadAsWritten)
{
    EXPECT_EQ(shortcutFromJson(parsed(copyJson())), copyShortcut());
}

TEST(ShortcutJson, HoldsExactlyTheSixFields)
{
    EXPECT_EQ(toJson(copyShortcut()), parsed(copyJson()));
}

TEST(ShortcutJson, ReturnsEqualForEveryCategoryAndHardText)
{
    for (const Shortcut::Category category : allCategories) {
        const Shortcut shortcut =
            makeShortcut(u"menu-Šíp-\"\\/\b\n\t→"_s, u"𝄞 👩‍👩‍👧 \u2028 \u202Eabc"_s,
                         {u"⌃"_s, u"−"_s, QString()}, {u"Poznámky"_s, QString()}, QString(), category);
        EXPECT_EQ(shortcutFromJson(toJson(shortcut)), shortcut);
        EXPECT_EQ(decodeShortcuts(encodeShortcuts({shortcut})), QList<Shortcut>{shortcut});
    }
}

TEST(ShortcutJson, NeedsEachOfTheSixFields)
{
    const QJsonObject whole = parsed(copyJson());
    ASSERT_EQ(whole.size(), 6);
    for (const QString &field : whole.keys()) {
        QJsonObject lacking = whole;
        lacking.remove(field);
        EXPECT_EQ(shortcutFromJson(lacking), std::nullopt) << field.toStdString();
        lacking.insert(field, QJsonValue::Null);
        EXPECT_EQ(shortcutFromJson(lacking), std::nullopt) << field.toStdString();
    }
}

TEST(ShortcutJson, RejectsFieldsOfAnotherType)
{
    const QList<QJsonValue> notTexts{7, true, QJsonArray{u"copy"_s}, QJsonObject{}};
    for (const auto &field : {u"id"_s, u"title"_s, u"category"_s, u"detail"_s}) {
        for (const QJsonValue &value : notTexts) {
            QJsonObject wrong = parsed(copyJson());
            wrong[field] = value;
            EXPECT_EQ(shortcutFromJson(wrong), std::nullopt) << field.toStdString();
        }
    }
    const QList<QJsonValue> notTextLists{
        u"⌘"_s, 7, false, QJsonObject{}, QJsonArray{u"⌘"_s, 7}, QJsonArray{QJsonValue::Null}};
    for (const auto &field : {u"keys"_s, u"apps"_s}) {
        for (const QJsonValue &value : notTextLists) {
            QJsonObject wrong = parsed(copyJson());
            wrong[field] = value;
            EXPECT_EQ(shortcutFromJson(wrong), std::nullopt) << field.toStdString();
        }
    }
}

TEST(ShortcutJson, RejectsWhatIsNoObject)
{
    for (const QJsonValue &value : {QJsonValue(), QJsonValue(QJsonValue::Undefined), QJsonValue(1),
                                    QJsonValue(u"copy"_s), QJsonValue(QJsonArray{parsed(copyJson())})})
        EXPECT_EQ(shortcutFromJson(value), std::nullopt);
}

TEST(ShortcutJson, KnowsCategoriesByTheirStoredNameAlone)
{
    for (const auto &name : {u"Basics"_s, u"zaklady"_s, u"základy"_s, u"Základy "_s, QString()}) {
        QJsonObject json = parsed(copyJson());
        json[u"category"_s] = name;
        EXPECT_EQ(shortcutFromJson(json), std::nullopt) << name.toStdString();
    }
}

TEST(ShortcutJson, IgnoresUnknownFields)
{
    QJsonObject json = parsed(copyJson());
    json[u"colour"_s] = u"red"_s;
    json[u"Title"_s] = 7;
    EXPECT_EQ(shortcutFromJson(json), copyShortcut());
}

TEST(ShortcutListJson, KeepsOrderAndRepetitions)
{
    const Shortcut first = copyShortcut();
    const Shortcut second = makeShortcut(u"b"_s, u"B"_s);
    const QList<Shortcut> list{second, first, second};
    EXPECT_EQ(decodeShortcuts(encodeShortcuts(list)), list);
}

TEST(ShortcutListJson, OfNothingIsAnEmptyArray)
{
    EXPECT_EQ(encodeShortcuts({}), QByteArray("[]"));
    EXPECT_EQ(decodeShortcuts("[]"), QList<Shortcut>());
}

TEST(ShortcutListJson, IsWrittenWithoutPrettyPrinting)
{
    EXPECT_FALSE(encodeShortcuts({copyShortcut(), copyShortcut()}).contains('\n'));
}

TEST(ShortcutListJson, FailsAsAWholeWhenOneRecordCannotBeRead)
{
    EXPECT_TRUE(decodeShortcuts('[' + copyJson() + ',' + copyJson() + ']').has_value());
    EXPECT_EQ(decodeShortcuts('[' + copyJson() + R"(,{"id":"x"}])"), std::nullopt);
    EXPECT_EQ(decodeShortcuts('[' + copyJson() + ",7]"), std::nullopt);
}

TEST(ShortcutListJson, RejectsWhatIsNoArray)
{
    for (const char *json : {"", "{}", "7", "[", "null", "\xff\xfe", "[{]"})
        EXPECT_EQ(decodeShortcuts(json), std::nullopt) << json;
    EXPECT_EQ(decodeShortcuts(copyJson()), std::nullopt);
}

TEST(Uniqued, KeepsTheFirstOfEqualRecordsInOrder)
{
    const Shortcut a = makeShortcut(u"a"_s, u"A"_s);
    const Shortcut b = makeShortcut(u"b"_s, u"B"_s);
    const Shortcut c = makeShortcut(u"c"_s, u"C"_s);
    EXPECT_EQ(uniqued({a, b, a, c, b}), (QList<Shortcut>{a, b, c}));
}

TEST(Uniqued, OfNothingIsNothing)
{
    EXPECT_EQ(uniqued({}), QList<Shortcut>());
}

TEST(Uniqued, KeepsRecordsThatShareAnIdButDifferElsewhere)
{
    const QList<Shortcut> list{makeShortcut(u"a"_s, u"One"_s), makeShortcut(u"a"_s, u"Two"_s)};
    EXPECT_EQ(uniqued(list), list);
}

TEST(Uniqued, TakesComposedAndDecomposedRecordsForTheSame)
{
    const Shortcut first = makeShortcut(u"a"_s, composed(u"Přiblížit"_s));
    const QList<Shortcut> result = uniqued({first, makeShortcut(u"a"_s, decomposed(u"Přiblížit"_s))});
    ASSERT_EQ(result.size(), 1);
    EXPECT_TRUE(result.first().title == first.title);
}

} // namespace keyvora
