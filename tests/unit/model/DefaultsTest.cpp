// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Defaults.h"

#include "unit/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView key{"key"};
constexpr QLatin1StringView otherKey{"other"};

using Map = QHash<QString, qint64>;

/// A folder for a store and a clock that stands still.
class Place
{
public:
    Place() = default;

    /// Begins with a file of this content.
    explicit Place(const QByteArray &content) { write(path(), content); }

    [[nodiscard]] QString path() const { return m_folder.filePath(u"defaults.json"_s); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Where an unreadable store is set aside.
    [[nodiscard]] QString asidePath() const { return path() + u".corrupt-20260102T030405"_s; }

    [[nodiscard]] Defaults open() const
    {
        return Defaults(path(), [] { return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC); });
    }

    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be opened)");
    }

    [[nodiscard]] QJsonObject stored() const { return QJsonDocument::fromJson(read(path())).object(); }

private:
    QTemporaryDir m_folder;
};

/// A place whose store holds this JSON under `key`.
Place withValue(const QByteArray &json)
{
    return Place("{\"key\":" + json + '}');
}

/// Which of the typed reads see a value.
QStringList readableAs(const Defaults &defaults)
{
    QStringList types;
    if (defaults.text(key))
        types.append(u"text"_s);
    if (defaults.textList(key))
        types.append(u"text list"_s);
    if (defaults.boolean(key))
        types.append(u"boolean"_s);
    if (defaults.integer(key))
        types.append(u"integer"_s);
    if (defaults.integerMap(key))
        types.append(u"integer map"_s);
    if (defaults.data(key))
        types.append(u"data"_s);
    return types;
}

void expectSetAside(const QByteArray &content)
{
    const Place place(content);
    Defaults defaults = place.open();
    EXPECT_EQ(place.names(), QStringList{QFileInfo(place.asidePath()).fileName()});
    EXPECT_EQ(Place::read(place.asidePath()), content);
    EXPECT_EQ(readableAs(defaults), QStringList());
    defaults.setText(key, u"new"_s);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, u"new"_s}}));
    EXPECT_EQ(Place::read(place.asidePath()), content);
}

} // namespace

TEST(Defaults, HoldNothingAndWriteNothingWithoutAFile)
{
    const Place place;
    const Defaults defaults = place.open();
    EXPECT_EQ(readableAs(defaults), QStringList());
    EXPECT_TRUE(place.names().isEmpty());
}

TEST(Defaults, ReturnWhatWasSet)
{
    const Place place;
    const QStringList texts{u"a"_s, QString(), u"ř 🎉 \"\\\n"_s + QChar(0)};
    const Map map{{u"a"_s, 1}, {QString(), -2}, {u"ř"_s, std::numeric_limits<qint64>::max()}};
    {
        Defaults defaults = place.open();
        defaults.setText("text"_L1, texts.last());
        defaults.setTextList("list"_L1, texts);
        defaults.setBoolean("boolean"_L1, false);
        defaults.setInteger("integer"_L1, std::numeric_limits<qint64>::min());
        defaults.setIntegerMap("map"_L1, map);
        defaults.setData("data"_L1, R"([{"a":[1,2.5,null,true,"x"]},[]])");
    }
    for (int i = 0; i < 2; ++i) {
        const Defaults defaults = place.open();
        EXPECT_EQ(defaults.text("text"_L1), texts.last());
        EXPECT_EQ(defaults.textList("list"_L1), texts);
        EXPECT_EQ(defaults.boolean("boolean"_L1), false);
        EXPECT_EQ(defaults.integer("integer"_L1), std::numeric_limits<qint64>::min());
        EXPECT_EQ(defaults.integerMap("map"_L1), map);
        EXPECT_EQ(defaults.data("data"_L1), R"([{"a":[1,2.5,null,true,"x"]},[]])");
    }
    EXPECT_EQ(place.names(), QStringList{u"defaults.json"_s});
}

TEST(Defaults, TellEmptyValuesFromAbsentOnes)
{
    const Place place;
    Defaults defaults = place.open();
    defaults.setText("text"_L1, {});
    defaults.setTextList("list"_L1, {});
    defaults.setIntegerMap("map"_L1, {});
    defaults.setInteger("integer"_L1, 0);
    const Defaults later = place.open();
    EXPECT_EQ(later.text("text"_L1), QString());
    EXPECT_EQ(later.textList("list"_L1), QStringList());
    EXPECT_EQ(later.integerMap("map"_L1), Map());
    EXPECT_EQ(later.integer("integer"_L1), 0);
}

TEST(Defaults, ReadAValueAsItsOwnTypeAlone)
{
    struct Row
    {
        QByteArray json;
        QStringList types;
    };
    const QList<Row> rows{
        {R"("text")", {u"text"_s}},
        {R"("true")", {u"text"_s}},
        {R"("7")", {u"text"_s}},
        {"true", {u"boolean"_s}},
        {"7", {u"integer"_s}},
        {"-7", {u"integer"_s}},
        {"1", {u"integer"_s}},
        {"9223372036854775807", {u"integer"_s}},
        {"9223372036854775808", {}},
        {"1e300", {}},
        {"7.5", {}},
        {"null", {}},
        {"[]", {u"text list"_s, u"data"_s}},
        {R"(["a","b"])", {u"text list"_s, u"data"_s}},
        {R"(["a",7])", {u"data"_s}},
        {R"([["a"]])", {u"data"_s}},
        {"[null]", {u"data"_s}},
        {"{}", {u"integer map"_s, u"data"_s}},
        {R"({"a":1,"b":-2})", {u"integer map"_s, u"data"_s}},
        {R"({"a":1,"b":"2"})", {u"data"_s}},
        {R"({"a":1,"b":2.5})", {u"data"_s}},
        {R"({"a":true})", {u"data"_s}},
        {R"({"a":null})", {u"data"_s}},
        {R"({"a":9223372036854775808})", {u"data"_s}},
    };
    for (const Row &row : rows) {
        const Place place = withValue(row.json);
        EXPECT_EQ(readableAs(place.open()), row.types) << row.json.toStdString();
        EXPECT_EQ(place.names(), QStringList{u"defaults.json"_s}) << row.json.toStdString();
    }
}

TEST(Defaults, ReplaceAValueByOneOfAnotherType)
{
    const Place place = withValue("[1]");
    Defaults defaults = place.open();
    defaults.setBoolean(key, true);
    EXPECT_EQ(readableAs(defaults), QStringList{u"boolean"_s});
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, true}}));
}

TEST(Defaults, TakeOnlyJsonArraysAndObjectsForData)
{
    const Place place = withValue(R"("before")");
    Defaults defaults = place.open();
    const QByteArray deep = QByteArray(100'000, '[') + QByteArray(100'000, ']');
    for (const QByteArray &json : {QByteArray(), QByteArray("7"), QByteArray("\"text\""), QByteArray("["),
                                   QByteArray("[]]"), QByteArray("[\"\xff\"]"), deep})
        defaults.setData(key, json);
    EXPECT_EQ(defaults.text(key), u"before"_s);
    defaults.setData(key, "{ \"a\" : [ ] }\n");
    EXPECT_EQ(defaults.data(key), R"({"a":[]})");
}

TEST(Defaults, KeepValuesOfKeysThatNobodyAsksFor)
{
    const QByteArray content = R"({"future":{"a":[1,2.5,null,{"b":"ř"}],"big":9007199254740993},"key":1})";
    const Place place(content);
    place.open().setText(otherKey, u"new"_s);
    QJsonObject expected = QJsonDocument::fromJson(content).object();
    expected[u"other"_s] = u"new"_s;
    EXPECT_EQ(place.stored(), expected);
    EXPECT_TRUE(Place::read(place.path()).contains("9007199254740993"));
}

TEST(Defaults, DoNotTouchTheFileUntilAValueIsSet)
{
    const QByteArray content = "{ \"key\" :\n 1 }";
    const Place place(content);
    const Defaults defaults = place.open();
    EXPECT_EQ(defaults.integer(key), 1);
    EXPECT_EQ(Place::read(place.path()), content);
}

TEST(Defaults, WriteEachValueAtOnce)
{
    const Place place;
    Defaults defaults = place.open();
    defaults.setInteger(key, 1);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 1}}));
    defaults.setInteger(key, 2);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}}));
    defaults.remove(key);
    EXPECT_EQ(place.stored(), QJsonObject());
    EXPECT_EQ(defaults.integer(key), std::nullopt);
}

TEST(Defaults, WriteWhatBelongsTogetherAtTheEnd)
{
    const Place place;
    Defaults defaults = place.open();
    defaults.setInteger(key, 1);
    defaults.changeTogether([&] {
        defaults.setInteger(key, 2);
        defaults.setInteger(otherKey, 3);
        EXPECT_EQ(defaults.integer(key), 2);
        EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 1}}));
    });
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}, {u"other"_s, 3}}));
    defaults.changeTogether([&] {
        defaults.remove(otherKey);
        EXPECT_EQ(place.stored().size(), 2);
    });
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}}));
    defaults.setInteger(key, 4);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 4}}));
}

TEST(Defaults, WriteNothingWhereNothingChangesTogether)
{
    const Place place;
    Defaults defaults = place.open();
    defaults.changeTogether([] {});
    EXPECT_TRUE(place.names().isEmpty());
}

TEST(Defaults, RemoveOnlyWhatIsThere)
{
    const Place place;
    place.open().remove(key);
    EXPECT_TRUE(place.names().isEmpty());
}

TEST(Defaults, MakeTheFolderWithTheFirstValue)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a/b/defaults.json"_s);
    Defaults defaults(path);
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"a"_s)));
    defaults.setBoolean(key, true);
    EXPECT_EQ(Defaults(path).boolean(key), true);
}

TEST(Defaults, SetAsideAFileThatIsNoWholeJsonObject)
{
    for (const char *content :
         {"", " \n", "{", R"({"key":1)", R"({"key":1}})", R"({"key":1} x)", "[]", "[1]", "7", "null",
          "\"text\"", "key=1", "{key:1}", R"({"key":01})", "{\"key\":\"a\nb"})
        expectSetAside(content);
}

TEST(Defaults, SetAsideAFileOfZeroBytes)
{
    expectSetAside(QByteArray(4096, '\0'));
    expectSetAside(QByteArray(R"({"key":1})") + QByteArray(100, '\0'));
}

TEST(Defaults, SetAsideAFileThatIsNoUtf8)
{
    expectSetAside("{\"key\":\"\xff\xfe\"}");
    expectSetAside("{\"key\":\"\xc3\"}");
    expectSetAside(QByteArray("\xff\xfe{\0}\0", 6));
}

TEST(Defaults, SetAsideAFileThatIsNestedTooDeeply)
{
    constexpr qsizetype depth = 1'000'000;
    expectSetAside(R"({"key":)" + QByteArray(depth, '[') + QByteArray(depth, ']') + '}');
    expectSetAside(QByteArray(R"({"a":)").repeated(depth));
}

TEST(Defaults, SetAsideAHugeFile)
{
    const Place place(R"({"key":1})");
    constexpr qint64 size = Defaults::maximumFileBytes * 1000;
    ASSERT_TRUE(QFile::resize(place.path(), size));
    Defaults defaults = place.open();
    EXPECT_EQ(readableAs(defaults), QStringList());
    EXPECT_EQ(QFileInfo(place.asidePath()).size(), size);
    defaults.setInteger(key, 2);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}}));
}

TEST(Defaults, ReadAFileOfTheGreatestSizeButNoneBeyondIt)
{
    QByteArray content = R"({"key":1})";
    content.insert(content.size() - 1, QByteArray(Defaults::maximumFileBytes - content.size(), ' '));
    EXPECT_EQ(Place(content).open().integer(key), 1);
    content.insert(1, ' ');
    EXPECT_EQ(Place(content).open().integer(key), std::nullopt);
}

TEST(Defaults, SetAsideAFolderInTheirPlace)
{
    const Place place;
    ASSERT_TRUE(QDir().mkpath(place.path() + u"/inside"_s));
    place.open().setInteger(key, 2);
    EXPECT_TRUE(QFileInfo(place.asidePath() + u"/inside"_s).isDir());
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}}));
}

TEST(Defaults, SetAsideAPipeInTheirPlace)
{
    const Place place;
    ASSERT_EQ(mkfifo(QFile::encodeName(place.path()).constData(), S_IRUSR | S_IWUSR), 0);
    place.open().setInteger(key, 2);
    EXPECT_EQ(place.stored(), (QJsonObject{{u"key"_s, 2}}));
    EXPECT_TRUE(QFileInfo::exists(place.asidePath()));
}

TEST(Defaults, DoNotReplaceALinkThatLeadsNowhere)
{
    const Place place;
    ASSERT_TRUE(QFile::link(place.path(u"not-mounted/store"_s), place.path()));
    Defaults defaults = place.open();
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
    EXPECT_FALSE(QFileInfo::exists(place.path(u"not-mounted"_s)));
    const QString link = QFileInfo(place.asidePath()).isSymLink() ? place.asidePath() : place.path();
    EXPECT_EQ(QFileInfo(link).symLinkTarget(), place.path(u"not-mounted/store"_s));
}

TEST(Defaults, WriteThroughALinkToTheStore)
{
    const Place place;
    Place::write(place.path(u"real.json"_s), R"({"key":1})");
    ASSERT_TRUE(QFile::link(place.path(u"real.json"_s), place.path()));
    Defaults defaults = place.open();
    EXPECT_EQ(defaults.integer(key), 1);
    defaults.setInteger(key, 2);
    EXPECT_TRUE(QFileInfo(place.path()).isSymLink());
    EXPECT_EQ(Place::read(place.path(u"real.json"_s)), R"({"key":2})");
}

TEST(Defaults, NameAFileThatIsSetAsideAfterTheTime)
{
    const Place place("broken");
    const Defaults defaults = place.open();
    EXPECT_EQ(place.names(), QStringList{u"defaults.json.corrupt-20260102T030405"_s});
}

TEST(Defaults, NeverOverwriteAFileSetAsideEarlier)
{
    const Place place;
    for (const char *content : {"broken 1", "broken 2", "broken 3"}) {
        Place::write(place.path(), content);
        const Defaults defaults = place.open();
    }
    QStringList contents;
    for (const QString &name : place.names())
        contents.append(QString::fromUtf8(Place::read(place.path(name))));
    contents.sort();
    EXPECT_EQ(contents, (QStringList{u"broken 1"_s, u"broken 2"_s, u"broken 3"_s}));
    for (const QString &name : place.names())
        EXPECT_TRUE(place.path(name).startsWith(place.asidePath())) << name.toStdString();
}

TEST(Defaults, LeaveAnUnreadableFileWhereNoNameForItIsFree)
{
    const Place place("broken");
    Place::write(place.asidePath(), "earlier");
    for (int i = 1; i < 200; ++i)
        Place::write(place.asidePath() + u'-' + QString::number(i), "earlier");
    Defaults defaults = place.open();
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
    EXPECT_EQ(Place::read(place.path()), "broken");
    EXPECT_EQ(Place::read(place.asidePath()), "earlier");
}

TEST(Defaults, LiveInMemoryWhereNoFileCanBe)
{
    const Place place;
    Place::write(place.path(u"file"_s), "in the way");
    Defaults defaults(place.path(u"file/defaults.json"_s));
    defaults.setInteger(key, 1);
    defaults.setTextList(otherKey, {u"a"_s});
    defaults.setInteger(key, 2);
    EXPECT_EQ(defaults.integer(key), 2);
    EXPECT_EQ(defaults.textList(otherKey), QStringList{u"a"_s});
    defaults.remove(key);
    EXPECT_EQ(defaults.integer(key), std::nullopt);
    EXPECT_EQ(Place::read(place.path(u"file"_s)), "in the way");
    EXPECT_EQ(place.names(), QStringList{u"file"_s});
}

TEST(Defaults, WriteEverythingOnceTheFileCanBeWritten)
{
    const Place place;
    Place::write(place.path(u"file"_s), "in the way");
    Defaults defaults(place.path(u"file/defaults.json"_s));
    defaults.setInteger(key, 1);
    ASSERT_TRUE(QFile::remove(place.path(u"file"_s)));
    defaults.setInteger(key, 1);
    EXPECT_EQ(Defaults(place.path(u"file/defaults.json"_s)).integer(key), 1);
    defaults.setBoolean(otherKey, true);
    EXPECT_EQ(Defaults(place.path(u"file/defaults.json"_s)).boolean(otherKey), true);
}

TEST(Defaults, RemoveWhatAnInterruptedWriteLeft)
{
    const Place place(R"({"key":1})");
    for (const auto &name : {u"defaults.json.part-abcdef"_s, u"defaults.json.part-backup"_s})
        Place::write(place.path(name), "{\"ke");
    EXPECT_EQ(place.open().integer(key), 1);
    EXPECT_EQ(place.names(), QStringList{u"defaults.json"_s});
}

TEST(Defaults, LeaveTheFilesOfOthersAlone)
{
    const QStringList names{u"defaults.json.BACKUP"_s, u"defaults.json.aBcDeF"_s,
                            u"defaults.json.backup"_s, u"defaults.json.corrupt-20250101T000000"_s,
                            u"defaults.json.part-1"_s, u"other.json.part-abcdef"_s};
    const Place place;
    for (const QString &name : names)
        Place::write(place.path(name), "mine");
    const Defaults defaults = place.open();
    const QStringList left = place.names();
    EXPECT_EQ(QSet<QString>(left.begin(), left.end()), QSet<QString>(names.begin(), names.end()));
}

} // namespace keyvora
