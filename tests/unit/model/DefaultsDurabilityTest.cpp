// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Defaults.h"
#include "unit/QtPrinters.h"
#include "unit/model/RecognisableContent.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <random>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int deadlineMilliseconds = 60'000;

/// The program that writes; this much longer than any wait it is allowed to live.
void start(QProcess &writer, const QString &mode, const QString &path)
{
    writer.start(QStringLiteral(KEYVORA_DEFAULTS_WRITER), {mode, path}, QIODevice::ReadOnly);
    ASSERT_TRUE(writer.waitForStarted(deadlineMilliseconds));
}

/// Waits for one line of what the writer says; nothing when it stays silent.
std::optional<qsizetype> nextReport(QProcess &writer)
{
    while (!writer.canReadLine()) {
        if (!writer.waitForReadyRead(deadlineMilliseconds))
            return std::nullopt;
    }
    return writer.readLine().trimmed().toLongLong();
}

/// Kills the writer and returns the last number that it said, or the one before where it said nothing more.
qsizetype killAndReadTheRest(QProcess &writer, qsizetype last)
{
    writer.kill();
    EXPECT_TRUE(writer.waitForFinished(deadlineMilliseconds));
    EXPECT_EQ(writer.exitStatus(), QProcess::CrashExit);
    // The very last line counts only when it arrived as a whole.
    while (writer.canReadLine())
        last = writer.readLine().trimmed().toLongLong();
    return last;
}

QJsonObject contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

TEST(DefaultsDurability, SurvivesBeingKilledAtAnyMoment)
{
    constexpr int kills = 40;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"defaults.json"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(R"({"other":{"kept":true}})") > 0);
    file.close();

    std::mt19937 random(20260101); // the same at each run
    qsizetype stored = 0;
    for (int i = 0; i < kills; ++i) {
        QProcess writer;
        start(writer, u"forever"_s, path);
        const int reports = std::uniform_int_distribution(1, 15)(random);
        qsizetype reported = stored;
        for (int report = 0; report < reports; ++report) {
            const auto next = nextReport(writer);
            ASSERT_TRUE(next.has_value()) << "the writer fell silent";
            ASSERT_EQ(*next, RecognisableContent::nextLineCount(reported)) << "what was stored got lost";
            reported = *next;
        }
        reported = killAndReadTheRest(writer, reported);

        // Read as a later start would read it, but before that could mend anything.
        EXPECT_EQ(contentOf(path)[u"other"_s], QJsonValue(QJsonObject{{u"kept"_s, true}}));
        const auto lines = Defaults(path).textList(RecognisableContent::key);
        ASSERT_TRUE(lines.has_value());
        stored = lines->size();
        EXPECT_EQ(*lines, RecognisableContent::lines(stored));
        EXPECT_TRUE(stored == reported || stored == RecognisableContent::nextLineCount(reported))
            << stored << " stored, " << reported << " reported";
    }

    // A name that could be a word is left alone, for it could be a copy that somebody made.
    static const QRegularExpression word(u"\\Adefaults\\.json\\.([A-Za-z][a-z]{5}|[A-Z]{6})\\z"_s);
    QStringList names = namesIn(folder.path());
    names.removeIf([](const QString &name) { return word.match(name).hasMatch(); });
    EXPECT_EQ(names, QStringList{u"defaults.json"_s});
}

TEST(DefaultsDurability, KeepsTheLastWholeFileWhenTheDiskIsFull)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"defaults.json"_s);
    Defaults(path).setText(QLatin1StringView("old"), u"value"_s);
    QProcess writer;
    start(writer, u"too-much"_s, path);
    ASSERT_TRUE(writer.waitForFinished(deadlineMilliseconds));
    EXPECT_EQ(writer.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(writer.exitCode(), 0);
    EXPECT_EQ(writer.readAllStandardError(), QByteArray()) << "no message";
    EXPECT_EQ(writer.readAllStandardOutput(), "5 100000\n") << "the values live in memory";
    EXPECT_EQ(contentOf(path), (QJsonObject{{u"old"_s, u"value"_s}, {u"small"_s, u"small"_s}}));
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"defaults.json"_s});
}

} // namespace keyvora
