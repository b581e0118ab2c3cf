// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Backup.h"

#include "unit/model/Program.h"

#include <QBuffer>
#include <QJsonArray>

#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace keyvora {

namespace {

constexpr qsizetype megabyte = 1024 * 1024;

/// Bytes that are made while they are read, so that no test holds a large file.
class MadeUpDevice : public QIODevice
{
public:
    /// What comes first, what comes over and over, how often, and what comes last.
    MadeUpDevice(QByteArray head, QByteArray middle, qint64 repetitions, QByteArray tail)
        : m_head(std::move(head))
        , m_middle(std::move(middle))
        , m_tail(std::move(tail))
        , m_middleBytes(m_middle.size() * repetitions)
    {
        open(ReadOnly | Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 given() const { return m_given; }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        qint64 count = 0;
        while (count < maximum && m_given < m_head.size() + m_middleBytes + m_tail.size())
            data[count++] = byteAt(m_given++);
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*count*/) override { return -1; }

private:
    [[nodiscard]] char byteAt(qint64 at) const
    {
        if (at < m_head.size())
            return m_head.at(at);
        at -= m_head.size();
        return at < m_middleBytes ? m_middle.at(at % m_middle.size()) : m_tail.at(at - m_middleBytes);
    }

    QByteArray m_head;
    QByteArray m_middle;
    QByteArray m_tail;
    qint64 m_middleBytes;
    qint64 m_given = 0;
};

/// Fails in the middle of the file.
class BrokenDevice : public QIODevice
{
public:
    BrokenDevice() { open(ReadOnly | Unbuffered); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        if (std::exchange(m_hasGiven, true))
            return -1;
        const QByteArray whole = R"({"customShortcuts":[],"favorites":[]})";
        std::copy_n(whole.begin(), qMin(maximum, whole.size()), data);
        return qMin(maximum, whole.size());
    }
    qint64 writeData(const char * /*data*/, qint64 /*count*/) override { return -1; }
    [[nodiscard]] bool atEnd() const override { return false; }

private:
    bool m_hasGiven = false;
};

/// One more field of an otherwise empty backup.
QByteArray withField(const QByteArray &field)
{
    return R"({"customShortcuts":[],)" + field + R"(,"favorites":[]})";
}

QByteArray withUnknown(const QByteArray &value)
{
    return withField(R"("unknown":)" + value);
}

QByteArray withShortcut(const QByteArray &shortcut)
{
    return R"({"customShortcuts":[)" + shortcut + R"(],"favorites":[]})";
}

/// A whole shortcut, with these fields behind its own.
QByteArray shortcutWith(const QByteArray &fields = {})
{
    return R"({"id":"a","title":"A","keys":["⌘"],"category":"Text","apps":["X"],"detail":"D")" + fields + '}';
}

QByteArray withFavorites(const QByteArray &favorites)
{
    return R"({"customShortcuts":[],"favorites":)" + favorites + '}';
}

bool isRead(const QByteArray &json)
{
    return decodeBackup(json).has_value();
}

/// The favourites, or one that no file holds when it was refused.
QStringList favoritesOf(const QByteArray &json)
{
    const auto backup = decodeBackup(json);
    return backup ? backup->favorites : QStringList{u"(refused)"_s};
}

} // namespace

TEST(EncodeBackup, IsACompactObjectOfTwoLists)
{
    const Backup backup{{makeShortcut(u"a"_s, u"A"_s, {u"⌘"_s}, {u"X"_s}, u"D"_s, Shortcut::Category::text)},
                        {u"copy"_s, u"gone"_s}};
    const QByteArray bytes = encodeBackup(backup);
    const QJsonObject expected{
        {u"customShortcuts"_s, QJsonArray{toJson(backup.customShortcuts.first())}},
        {u"favorites"_s, QJsonArray{u"copy"_s, u"gone"_s}},
    };
    EXPECT_EQ(QJsonDocument::fromJson(bytes).object(), expected);
    EXPECT_EQ(bytes, QJsonDocument(expected).toJson(QJsonDocument::Compact));
}

TEST(EncodeBackup, IsReadAsItWas)
{
    const QString strange =
        u"\"\\/\b\f\n\r\t"_s + QChar(0) + u'\x1F' + QChar(0xFEFF) + u"ěščř ⌘ 😀"_s + QChar(0xFFFE);
    const Backup backup{{makeShortcut(strange, strange, {strange, {}}, {strange}, strange), makeShortcut({}),
                         makeShortcut({})},
                        {QChar(0xFEFF) + strange, {}, {}, strange}};
    EXPECT_EQ(decodeBackup(encodeBackup(backup)), backup);
    EXPECT_EQ(decodeBackup(encodeBackup({})), Backup());
}

TEST(EncodeBackup, ReplacesHalvesOfSurrogatePairs)
{
    const QString broken = u'a' + QString(QChar(0xD83D)) + u'b' + QChar(0xDE00);
    const QString whole = u"a\uFFFDb\uFFFD"_s;
    const auto backup = decodeBackup(encodeBackup({{makeShortcut(broken, {}, {broken})}, {broken}}));
    EXPECT_EQ(backup, (Backup{{makeShortcut(whole, {}, {whole})}, {whole}}));
}

TEST(EncodeBackup, RefusesWhatCouldNotBeRead)
{
    const QString half(BackupLimits::textBytes / 2, u'x');
    const QByteArray whole = encodeBackup({{}, {half, half}});
    EXPECT_EQ(favoritesOf(whole).size(), 2);
    EXPECT_EQ(encodeBackup({{}, {half, half, u"x"_s}}), QByteArray());
    EXPECT_EQ(encodeBackup({{makeShortcut({}, half, {half})}, {}}), QByteArray());
    // What the encoder escapes takes more room.
    EXPECT_EQ(encodeBackup({{}, {QString(BackupLimits::textBytes / 2, u'\n')}}), QByteArray());
}

TEST(EncodeBackup, RefusesTooManyTexts)
{
    QStringList many(BackupLimits::textCount, u"x"_s);
    EXPECT_EQ(favoritesOf(encodeBackup({{}, many})).size(), BackupLimits::textCount);
    many.append(QString());
    EXPECT_EQ(encodeBackup({{}, many}), QByteArray());
}

TEST(DecodeBackup, NeedsBothLists)
{
    EXPECT_TRUE(isRead(R"({"customShortcuts":[],"favorites":[]})"));
    EXPECT_TRUE(isRead(R"({"favorites":[],"customShortcuts":[]})"));
    EXPECT_TRUE(isRead(" \t\r\n{ \"favorites\" : [ ] ,\n\"customShortcuts\" : [ ] } \n"));
    for (const char *json :
         {R"({})", R"({"customShortcuts":[]})", R"({"favorites":[]})",
          R"({"customshortcuts":[],"favorites":[]})", R"({"favorites ":[],"customShortcuts":[]})"})
        EXPECT_FALSE(isRead(json)) << json;
}

TEST(DecodeBackup, NeedsAnObject)
{
    for (const char *json : {"", " ", "[]", "null", "1", "true", R"("favorites")", "[{}]", "{", "}",
                             R"([{"customShortcuts":[],"favorites":[]}])"})
        EXPECT_FALSE(isRead(json)) << json;
}

TEST(DecodeBackup, NeedsLists)
{
    for (const QByteArray value :
         {"1", "-1.5e3", "null", "true", "false", R"("copy")", "{}", R"({"0":"copy"})"}) {
        EXPECT_FALSE(isRead(R"({"customShortcuts":[],"favorites":)" + value + '}')) << value.toStdString();
        EXPECT_FALSE(isRead(R"({"favorites":[],"customShortcuts":)" + value + '}')) << value.toStdString();
    }
}

TEST(DecodeBackup, NeedsTextsForFavorites)
{
    for (const QByteArray value :
         {"1", "18446744073709551615", "-1", "1.5", "null", "true", "[]", "{}", R"(["copy"])"}) {
        EXPECT_FALSE(isRead(withFavorites('[' + value + ']'))) << value.toStdString();
        EXPECT_FALSE(isRead(withFavorites(R"(["copy",)" + value + R"(,"paste"])"))) << value.toStdString();
    }
    EXPECT_EQ(favoritesOf(withFavorites(R"(["copy","","copy"])")), (QStringList{u"copy"_s, {}, u"copy"_s}));
}

TEST(DecodeBackup, NeedsObjectsForShortcuts)
{
    for (const QByteArray value : {"1", "null", "false", R"("a")", "[]", "{}", R"([{"id":"a"}])"}) {
        EXPECT_FALSE(isRead(withShortcut(value))) << value.toStdString();
        EXPECT_FALSE(isRead(withShortcut(shortcutWith() + ',' + value + ',' + shortcutWith())))
            << value.toStdString();
    }
    EXPECT_TRUE(isRead(withShortcut(shortcutWith() + ',' + shortcutWith())));
}

TEST(DecodeBackup, NeedsEachFieldOfAShortcutWithItsType)
{
    const QJsonObject whole = toJson(makeShortcut(u"a"_s));
    for (const QString &name : whole.keys()) {
        const auto isReadWith = [&](const QJsonValue &value) {
            QJsonObject changed = whole;
            changed[name] = value;
            const QJsonObject json{{u"customShortcuts"_s, QJsonArray{changed}},
                                   {u"favorites"_s, QJsonArray()}};
            return isRead(QJsonDocument(json).toJson());
        };
        EXPECT_TRUE(isReadWith(whole[name])) << name.toStdString();
        EXPECT_FALSE(isReadWith(QJsonValue::Undefined)) << name.toStdString();
        EXPECT_FALSE(isReadWith(QJsonValue::Null)) << name.toStdString();
        EXPECT_FALSE(isReadWith(1)) << name.toStdString();
        EXPECT_FALSE(isReadWith(QJsonObject())) << name.toStdString();
        EXPECT_FALSE(isReadWith(QJsonArray{1})) << name.toStdString();
        EXPECT_FALSE(isReadWith(QJsonArray{u"a"_s, QJsonArray()})) << name.toStdString();
        EXPECT_EQ(isReadWith(QJsonArray{u"a"_s}), whole[name].isArray()) << name.toStdString();
        EXPECT_EQ(isReadWith(u"a"_s), whole[name].isString() && name != u"category") << name.toStdString();
    }
}

TEST(DecodeBackup, NeedsAKnownCategory)
{
    for (const Shortcut::Category category : allCategories) {
        const QByteArray json = encodeBackup({{makeShortcut(u"a"_s, {}, {}, {}, {}, category)}, {}});
        EXPECT_TRUE(isRead(json)) << json.toStdString();
    }
    for (const QByteArray name : {"", "Basics", "text", "Text ", R"(Text\u0000)"})
        EXPECT_FALSE(isRead(withShortcut(shortcutWith(R"(,"category":")" + name + '"'))))
            << name.toStdString();
}

TEST(DecodeBackup, IgnoresUnknownFieldsOfAnyKind)
{
    for (const QByteArray value :
         {"null", "0", "-0.5", R"("text")", "[]", "{}", R"([[],{},[{"id":1}],"x",2])",
          R"({"favorites":3,"customShortcuts":{"favorites":["no"]},"id":[]})"}) {
        EXPECT_EQ(decodeBackup(withUnknown(value)), Backup()) << value.toStdString();
        EXPECT_TRUE(isRead(withShortcut(shortcutWith(R"(,"more":)" + value)))) << value.toStdString();
    }
    // Names count where they belong alone.
    EXPECT_TRUE(isRead(withField(R"("id":1,"keys":[2])")));
    EXPECT_TRUE(isRead(withShortcut(shortcutWith(R"(,"favorites":1,"customShortcuts":[2])"))));
}

TEST(DecodeBackup, TakesTheLastOfRepeatedFields)
{
    EXPECT_EQ(favoritesOf(withField(R"("favorites":["first"])")), QStringList());
    EXPECT_EQ(favoritesOf(R"({"favorites":[],"customShortcuts":[],"favorites":["last"]})"),
              QStringList{u"last"_s});
    EXPECT_EQ(favoritesOf(R"({"favorites":[1],"customShortcuts":3,"favorites":["b"],"customShortcuts":[]})"),
              QStringList{u"b"_s});
    EXPECT_FALSE(isRead(R"({"favorites":[],"customShortcuts":[],"favorites":null})"));
    EXPECT_FALSE(isRead(R"({"favorites":[],"customShortcuts":[],"customShortcuts":[1]})"));

    const auto repeated = decodeBackup(
        withShortcut(R"({"id":[],"keys":"x","apps":["no"],)" + shortcutWith(R"(,"title":"Z")").mid(1)));
    ASSERT_TRUE(repeated.has_value());
    EXPECT_EQ(repeated->customShortcuts, (QList<Shortcut>{makeShortcut(u"a"_s, u"Z"_s, {u"⌘"_s}, {u"X"_s},
                                                                       u"D"_s, Shortcut::Category::text)}));
    EXPECT_FALSE(isRead(withShortcut(shortcutWith(R"(,"detail":5)"))));
    EXPECT_FALSE(isRead(withShortcut(shortcutWith(R"(,"keys":["⌘",5])"))));
}

TEST(DecodeBackup, KeepsShortcutsWithTheSameIdInTheirOrder)
{
    const auto backup = decodeBackup(withShortcut(shortcutWith() + ',' + shortcutWith(R"(,"title":"B")")));
    ASSERT_TRUE(backup.has_value());
    ASSERT_EQ(idsOf(backup->customShortcuts), (QStringList{u"a"_s, u"a"_s}));
    EXPECT_EQ(backup->customShortcuts.at(1).title, u"B"_s);
}

TEST(DecodeBackup, UnescapesTextsAndNames)
{
    EXPECT_EQ(favoritesOf(R"({"\u0066avorites":["\u00e9\n\ud83d\ude00\/"],"customShortcuts":[]})"),
              QStringList{u"é\n😀/"_s});
    EXPECT_EQ(favoritesOf(withFavorites(R"(["a\u0000b"])")), QStringList{u"a"_s + QChar(0) + u'b'});
    // A name ends where its text ends.
    EXPECT_FALSE(isRead(R"({"favorites\u0000":[],"customShortcuts":[]})"));
    EXPECT_FALSE(isRead(withFavorites(R"(["\x"])")));
    EXPECT_FALSE(isRead(withFavorites(R"(["\u12g4"])")));
}

TEST(DecodeBackup, KeepsAByteOrderMarkInsideATextAndSkipsItBeforeTheFile)
{
    EXPECT_EQ(favoritesOf(withFavorites("[\"\xEF\xBB\xBF"
                                        "a\"]")),
              QStringList{QChar(0xFEFF) + u"a"_s});
    EXPECT_TRUE(isRead("\xEF\xBB\xBF" + withFavorites("[]")));
    EXPECT_FALSE(isRead("\xEF\xBB\xBF\xEF\xBB\xBF" + withFavorites("[]")));
    EXPECT_FALSE(isRead("\xEF\xBB\xBF"));
    EXPECT_FALSE(isRead("\xEF\xBB"));
    EXPECT_FALSE(isRead("\xEF\xBB" + withFavorites("[]")));
    EXPECT_FALSE(isRead(QByteArray("\xFF\xFE{\0}\0", 6)));
}

TEST(DecodeBackup, RefusesWhatIsNotUtf8)
{
    for (const QByteArray bytes : {"\x80", "\xC3", "\xC3(", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
                                   "\xED\xB0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE",
                                   "\xE4"
                                   "b"}) {
        EXPECT_FALSE(isRead(withFavorites("[\"" + bytes + "\"]"))) << bytes.toHex().toStdString();
        EXPECT_FALSE(isRead(withUnknown('"' + bytes + '"'))) << bytes.toHex().toStdString();
        EXPECT_FALSE(isRead(withField('"' + bytes + R"(":1)"))) << bytes.toHex().toStdString();
        EXPECT_FALSE(isRead(withUnknown(bytes))) << bytes.toHex().toStdString();
    }
}

TEST(DecodeBackup, RefusesHalvesOfSurrogatePairs)
{
    for (const QByteArray text : {R"(\ud83d)", R"(\ude00)", R"(\ude00\ud83d)", R"(\ud83dx)", R"(\ud83d\n)",
                                  R"(\ud83d\ud83d)", R"(x\udfff)"}) {
        EXPECT_FALSE(isRead(withFavorites("[\"" + text + "\"]"))) << text.toStdString();
        EXPECT_FALSE(isRead(withUnknown('"' + text + '"'))) << text.toStdString();
    }
    EXPECT_EQ(favoritesOf(withFavorites(R"(["\ud7ff\ue000"])")), QStringList{u"\uD7FF\uE000"_s});
}

TEST(DecodeBackup, RefusesNulAndOtherControlCharacters)
{
    const QByteArray nul(1, '\0');
    const QByteArray whole = withFavorites("[]");
    EXPECT_FALSE(isRead(whole + nul));
    EXPECT_FALSE(isRead(nul + whole));
    EXPECT_FALSE(isRead(whole + nul + "garbage"));
    EXPECT_FALSE(isRead(withFavorites('[' + nul + ']')));
    EXPECT_FALSE(isRead(withFavorites("[\"" + nul + "\"]")));
    EXPECT_FALSE(isRead(withFavorites("[\"a\nb\"]")));
    EXPECT_FALSE(isRead(withUnknown("\"\x1F\"")));
}

TEST(DecodeBackup, RefusesTrailingGarbageAndWhatIsCutOff)
{
    const QByteArray whole = withShortcut(shortcutWith());
    for (const char *garbage : {"x", "{}", ",", "]", "}", "\"", "// comment"})
        EXPECT_FALSE(isRead(whole + garbage)) << garbage;
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(isRead(whole.left(length))) << length;
}

TEST(DecodeBackup, RefusesWhatIsAlmostJson)
{
    for (const char *json :
         {R"({"customShortcuts":[],"favorites":[],})", R"({"customShortcuts":[],"favorites":[,]})",
          R"({"customShortcuts":[],"favorites":["a",]})", R"({'customShortcuts':[],'favorites':[]})",
          R"({customShortcuts:[],favorites:[]})", R"({"customShortcuts":[] "favorites":[]})",
          R"({"customShortcuts":[],/**/"favorites":[]})"})
        EXPECT_FALSE(isRead(json)) << json;
    for (const char *value : {"01", "-", "+1", "1.", ".5", "1e", "1e+", "0x1", "NaN", "Infinity", "-Infinity",
                              "nul", "truE", "00", "-01", "1.2.3", "1e1.5"})
        EXPECT_FALSE(isRead(withUnknown(value))) << value;
}

TEST(DecodeBackup, IgnoresNumbersOfAnySize)
{
    const QByteArray digits(1000, '9');
    for (const QByteArray &value :
         {QByteArray("1e400"), QByteArray("-1E+99999999999999999999"), QByteArray("1e-99999999999999999999"),
          digits, '-' + digits + '.' + digits, "0." + digits + 'e' + digits, QByteArray("0e0"),
          QByteArray("1e0400"), QByteArray("10"), QByteArray("0.00")})
        EXPECT_TRUE(isRead(withUnknown(value))) << value.toStdString();
    MadeUpDevice endless(R"({"favorites":[],"customShortcuts":[],"x":1)", "0", 50 * megabyte, "}");
    EXPECT_TRUE(decodeBackup(endless).has_value());
}

TEST(DecodeBackup, ReadsNestingUpToTheBound)
{
    const auto nested = [](int depth, const QByteArray &open, const QByteArray &close) {
        return withUnknown(open.repeated(depth) + '0' + close.repeated(depth));
    };
    // The file is an object itself.
    EXPECT_TRUE(isRead(nested(BackupLimits::nesting - 1, "[", "]")));
    EXPECT_FALSE(isRead(nested(BackupLimits::nesting, "[", "]")));
    EXPECT_TRUE(isRead(nested(BackupLimits::nesting - 1, R"({"a":)", "}")));
    EXPECT_FALSE(isRead(nested(BackupLimits::nesting, R"({"a":)", "}")));
    EXPECT_FALSE(isRead(nested(100'000, "[", "]")));
    EXPECT_FALSE(isRead(QByteArray(100'000, '[')));
    // As often as one likes beside each other.
    EXPECT_TRUE(isRead(withUnknown('[' + QByteArray("[],{},").repeated(BackupLimits::nesting) + "[]]")));
}

TEST(DecodeBackup, StopsReadingAtTheFirstMistake)
{
    MadeUpDevice zeros({}, QByteArray(1, '\0'), BackupLimits::fileBytes, {});
    EXPECT_FALSE(decodeBackup(zeros).has_value());
    EXPECT_LT(zeros.given(), megabyte);
    MadeUpDevice deep({}, "[", BackupLimits::fileBytes, {});
    EXPECT_FALSE(decodeBackup(deep).has_value());
    EXPECT_LT(deep.given(), megabyte);
}

TEST(DecodeBackup, ReadsAFileUpToTheBound)
{
    const QByteArray head = withFavorites("[]");
    MadeUpDevice whole(head, " ", BackupLimits::fileBytes - head.size(), {});
    EXPECT_TRUE(decodeBackup(whole).has_value());
    MadeUpDevice larger(head, " ", BackupLimits::fileBytes - head.size() + 1, {});
    EXPECT_FALSE(decodeBackup(larger).has_value());
    MadeUpDevice endless(head, "\n", 1'000'000 * megabyte, {});
    EXPECT_FALSE(decodeBackup(endless).has_value());
    EXPECT_LE(endless.given(), BackupLimits::fileBytes + megabyte);
}

TEST(DecodeBackup, RefusesADeviceThatFails)
{
    BrokenDevice broken;
    EXPECT_FALSE(decodeBackup(broken).has_value());
}

TEST(DecodeBackup, ReadsTextsThatAreCutByTheEndOfAPiece)
{
    // Whatever the size of a piece is, some of these lie across its end.
    for (int padding = 0; padding < 8; ++padding) {
        const QString favorite = u"ě⌘😀\n"_s.repeated(100'000);
        const QByteArray json = QByteArray(padding, ' ') + encodeBackup({{}, {favorite}});
        EXPECT_TRUE(favoritesOf(json) == QStringList{favorite}) << padding;
    }
}

TEST(DecodeBackup, SkipsTextsOfAnyLengthThatNobodyWants)
{
    MadeUpDevice longText(R"({"favorites":["copy"],"customShortcuts":[],"x":")", R"(ab\n\u00e9é)",
                          10 * megabyte, R"("})");
    EXPECT_EQ(decodeBackup(longText), (Backup{{}, {u"copy"_s}}));
    MadeUpDevice longName(R"({"favorites":["copy"],"customShortcuts":[],"x)", "favorites", 10 * megabyte,
                          R"(":1})");
    EXPECT_EQ(decodeBackup(longName), (Backup{{}, {u"copy"_s}}));
    MadeUpDevice badEnd(R"({"favorites":["copy"],"customShortcuts":[],"x":")", "ab", 20 * megabyte,
                        R"(\ude00"})");
    EXPECT_FALSE(decodeBackup(badEnd).has_value());
}

TEST(DecodeBackup, RefusesMoreTextThanItKeeps)
{
    const qint64 room = BackupLimits::textBytes;
    const auto isReadWith = [](qint64 length, const QByteArray &tail) {
        MadeUpDevice device(R"({"customShortcuts":[],"favorites":[")", "x", length, R"("])" + tail + '}');
        return decodeBackup(device).has_value();
    };
    EXPECT_TRUE(isReadWith(room, {}));
    EXPECT_FALSE(isReadWith(room + 1, {}));
    EXPECT_FALSE(isReadWith(100 * megabyte, {}));
    MadeUpDevice together(R"({"customShortcuts":[],"favorites":[")" + QByteArray(room / 2, 'x') + "\"",
                          ",\"xxxxxxxx\"", room / 16 + 1, "]}");
    EXPECT_FALSE(decodeBackup(together).has_value());
}

TEST(DecodeBackup, RefusesMoreTextsThanItKeeps)
{
    MadeUpDevice favorites(R"({"customShortcuts":[],"favorites":[""])", R"(,"")", 40 * megabyte, "]}");
    EXPECT_FALSE(decodeBackup(favorites).has_value());
    EXPECT_LT(favorites.given(), 20 * megabyte);
    MadeUpDevice keys(R"({"favorites":[],"customShortcuts":[{"keys":[""])", R"(,"")", 40 * megabyte, "]}]}");
    EXPECT_FALSE(decodeBackup(keys).has_value());
    EXPECT_LT(keys.given(), 20 * megabyte);
    // What is not kept may be as many as one likes.
    MadeUpDevice arrays(R"({"favorites":["copy"],"customShortcuts":[],"x":[[])", R"(,[""])", 5 * megabyte,
                        "]}");
    EXPECT_EQ(decodeBackup(arrays), (Backup{{}, {u"copy"_s}}));
}

} // namespace keyvora
