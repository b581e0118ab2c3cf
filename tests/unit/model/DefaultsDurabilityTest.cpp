// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Defaults.h"
#include "unit/QtPrinters.h"
#include "unit/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <array>
#include <atomic>
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView key{"lines"};
constexpr qsizetype maximumLineCount = 60;

/// The value that has this many lines; each says its number, so that a whole value is told from a torn one,
/// and is long enough that most take several writes.
QStringList lines(qsizetype count)
{
    QStringList result;
    for (qsizetype i = 1; i <= count; ++i)
        result.append(QString::number(i) + QString(200 + i, QLatin1Char(static_cast<char>('a' + i % 26))));
    return result;
}

/// The number of lines that follows; it begins again at one.
qsizetype nextLineCount(qsizetype count)
{
    return count >= maximumLineCount ? 1 : count + 1;
}

/// What the writing process tells the test, in memory that both have: how many lines have the value that it
/// stores now and the one that it stored last.
struct Report
{
    std::atomic<qsizetype> begun = 0;
    std::atomic<qsizetype> done = 0;
};

/// A report that processes share.
class SharedReport
{
public:
    SharedReport()
        : m_memory(mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
        , m_report(new (m_memory) Report)
    {
    }
    ~SharedReport() { munmap(m_memory, sizeof(Report)); }
    Q_DISABLE_COPY_MOVE(SharedReport)

    [[nodiscard]] Report &operator*() const { return *m_report; }
    [[nodiscard]] Report *operator->() const { return m_report; }

private:
    void *m_memory;
    Report *m_report;
};

/// Stores one value after the other until it is killed, first the one that comes after what is stored. Says
/// on the pipe that it begins.
[[noreturn]] void storeForEver(const QString &path, Report &report, int pipe)
{
    Defaults defaults(path);
    if (write(pipe, "x", 1) != 1)
        _exit(1);
    for (qsizetype count = report.done;; report.done = count) {
        count = nextLineCount(count);
        report.begun = count;
        defaults.setTextList(key, lines(count));
    }
}

/// Lets a process store until it is killed, that many microseconds after it has begun.
void storeUntilKilled(const QString &path, Report &report, useconds_t microseconds)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC), 0);
    const pid_t writer = fork();
    ASSERT_GE(writer, 0);
    if (writer == 0)
        storeForEver(path, report, pipe[1]);
    char begins = 0;
    EXPECT_EQ(read(pipe[0], &begins, 1), 1);
    usleep(microseconds);
    kill(writer, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "it ended by itself";
    close(pipe[0]);
    close(pipe[1]);
}

/// A time of any order of magnitude, because nobody knows how fast the disk is.
useconds_t someMicroseconds(std::mt19937 &random)
{
    constexpr double longest = 20'000;
    return static_cast<useconds_t>(std::pow(longest, std::uniform_real_distribution(0.0, 1.0)(random)));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

TEST(DefaultsDurability, SurvivesBeingKilledAThousandTimesAtAnyMoment)
{
    constexpr int kills = 1000;
    constexpr std::mt19937::result_type seed = 20260101;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"defaults.json"_s);
    Defaults(path).setText(QLatin1StringView("other"), u"kept"_s);

    std::mt19937 random(seed);
    const SharedReport report;
    int interrupted = 0;
    int leftBehind = 0;
    for (int i = 0; i < kills; ++i) {
        const qsizetype before = report->done;
        report->begun = before;
        ASSERT_NO_FATAL_FAILURE(storeUntilKilled(path, *report, someMicroseconds(random)));

        // Read before a later start could mend anything.
        const QJsonObject stored = QJsonDocument::fromJson(contentOf(path)).object();
        ASSERT_EQ(stored[u"other"_s], QJsonValue(u"kept"_s)) << "after " << i << " kills";
        const qsizetype count = stored[key].toArray().size();
        ASSERT_EQ(stored[key].toArray(), QJsonArray::fromStringList(lines(count)));
        ASSERT_TRUE(count == report->done || count == report->begun)
            << count << " lines, after " << report->done << " were stored and " << report->begun << " begun";
        const qsizetype leftovers = namesIn(folder.path()).size() - 1;
        ASSERT_LE(leftovers, 1) << "each start removes what the one before left";
        interrupted += report->begun != report->done ? 1 : 0;
        leftBehind += leftovers > 0 ? 1 : 0;
        report->done = count;
    }
    EXPECT_GT(interrupted, kills / 10) << "the kills met no writes";
    EXPECT_GT(leftBehind, 0) << "the kills met no files half written";

    const Defaults defaults(path);
    EXPECT_EQ(defaults.textList(key).value_or(QStringList()), lines(report->done));
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"defaults.json"_s});
}

TEST(DefaultsDurability, KeepsTheLastWholeFileWhereTheDiskIsFullAndWritesAgainWhenThereIsRoom)
{
    checkOnSmallDisk(256 * 1024, [](const QString &folder) {
        const QString path = folder + u"/defaults.json"_s;
        const QString filler = folder + u"/filler"_s;
        Defaults defaults(path);
        defaults.setTextList(key, lines(2));
        const QByteArray whole = contentOf(path);
        fillDisk(filler);
        const QStringList names = namesIn(folder);
        for (qsizetype count = 3; count < maximumLineCount; ++count)
            defaults.setTextList(key, lines(count));
        EXPECT_EQ(contentOf(path), whole);
        EXPECT_EQ(namesIn(folder), names);
        EXPECT_EQ(defaults.textList(key), lines(maximumLineCount - 1)) << "the values live in memory";
        EXPECT_EQ(Defaults(path).textList(key), lines(2)) << "another start sees what was written";

        ASSERT_TRUE(QFile::remove(filler));
        defaults.setText(QLatin1StringView("other"), u"value"_s);
        EXPECT_EQ(Defaults(path).textList(key), lines(maximumLineCount - 1));
        EXPECT_EQ(Defaults(path).text(QLatin1StringView("other")), u"value"_s);
        EXPECT_EQ(namesIn(folder), QStringList{u"defaults.json"_s});
    });
}

} // namespace keyvora
