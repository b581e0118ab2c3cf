// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/AtomicFile.h"

#include "unit/QtPrinters.h"
#include "unit/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "(cannot be opened)";
    return file.readAll();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

TEST(ReplaceFile, MakesAFileThatIsNotThere)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    EXPECT_TRUE(replaceFile(path, "content"));
    EXPECT_EQ(contentOf(path), "content");
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"store"_s});
}

TEST(ReplaceFile, MakesTheFoldersOnTheWay)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a/ř/c/store"_s);
    EXPECT_TRUE(replaceFile(path, "content"));
    EXPECT_EQ(contentOf(path), "content");
}

TEST(ReplaceFile, ReplacesLongerContentAsAWhole)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    ASSERT_TRUE(write(path, QByteArray(100'000, 'x')));
    EXPECT_TRUE(replaceFile(path, "short"));
    EXPECT_EQ(contentOf(path), "short");
    EXPECT_TRUE(replaceFile(path, {}));
    EXPECT_EQ(contentOf(path), "");
}

TEST(ReplaceFile, LeavesTheOldContentToWhoeverReadsIt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    ASSERT_TRUE(write(path, "old"));
    QFile reader(path);
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(reader.readAll(), "old");
    EXPECT_EQ(contentOf(path), "new");
}

TEST(ReplaceFile, KeepsTheRightsOfTheFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    ASSERT_TRUE(write(path, "old"));
    constexpr auto rights = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path, rights));
    const auto before = QFileInfo(path).permissions();
    EXPECT_TRUE(replaceFile(path, "new"));
    EXPECT_EQ(QFileInfo(path).permissions(), before);
}

TEST(ReplaceFile, WritesThroughALink)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"target"_s);
    const QString link = folder.filePath(u"store"_s);
    ASSERT_TRUE(write(target, "old"));
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(replaceFile(link, "new"));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(contentOf(target), "new");
}

TEST(ReplaceFile, SaysWhyAFolderCannotBeMade)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(write(folder.filePath(u"file"_s), "content"));
    QString reason;
    EXPECT_FALSE(replaceFile(folder.filePath(u"file/store"_s), "new", &reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(contentOf(folder.filePath(u"file"_s)), "content");
    EXPECT_FALSE(replaceFile(folder.filePath(u"file/store"_s), "new"));
}

TEST(ReplaceFile, DoesNotReplaceAFolder)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    ASSERT_TRUE(QDir().mkpath(path + u"/inside"_s));
    QString reason;
    EXPECT_FALSE(replaceFile(path, "new", &reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(namesIn(path), QStringList{u"inside"_s});
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"store"_s});
}

TEST(ReplaceFile, MakesAFileWithTheRightsThatTheUsersMaskLeaves)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    const mode_t mask = umask(S_IWGRP | S_IRWXO);
    EXPECT_TRUE(replaceFile(path, "content"));
    umask(mask);
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & ALLPERMS, S_IRUSR | S_IWUSR | S_IRGRP);
}

TEST(ReplaceFile, WritesThroughALinkToAFileThatIsNotThereYet)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"store"_s);
    ASSERT_TRUE(QFile::link(u"missing/target"_s, link));
    EXPECT_TRUE(replaceFile(link, "new"));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(contentOf(folder.filePath(u"missing/target"_s)), "new");
}

TEST(ReplaceFile, DoesNotFollowLinksForEver)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"store"_s);
    ASSERT_TRUE(QFile::link(u"store"_s, link));
    QString reason;
    EXPECT_FALSE(replaceFile(link, "new", &reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"store"_s});
}

TEST(ReplaceFile, DoesNotReplaceWhatIsNoFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(replaceFile(path, "new"));
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_EQ(namesIn(folder.path()), QStringList{u"store"_s});
}

TEST(ReplaceFile, TakesTheLongestName)
{
    const QTemporaryDir folder;
    const QString name(255, u'n');
    EXPECT_TRUE(replaceFile(folder.filePath(name), "old"));
    EXPECT_TRUE(replaceFile(folder.filePath(name), "new"));
    EXPECT_EQ(contentOf(folder.filePath(name)), "new");
    EXPECT_FALSE(replaceFile(folder.filePath(name + u'n'), "new"));
    EXPECT_EQ(namesIn(folder.path()), QStringList{name});
}

TEST(ReplaceFile, LeavesTheOldContentAndNothingElseWhereTheDiskIsFull)
{
    checkOnSmallDisk(64 * 1024, [](const QString &folder) {
        const QString path = folder + u"/store"_s;
        const QString filler = folder + u"/filler"_s;
        ASSERT_TRUE(replaceFile(path, "old"));
        QString reason;
        EXPECT_FALSE(replaceFile(path, QByteArray(100'000, 'x'), &reason)) << "more than the whole disk";
        EXPECT_FALSE(reason.isEmpty());
        EXPECT_EQ(contentOf(path), "old");
        EXPECT_EQ(namesIn(folder), QStringList{u"store"_s});

        fillDisk(filler);
        const QStringList names = namesIn(folder);
        EXPECT_FALSE(replaceFile(path, "new"));
        EXPECT_FALSE(replaceFile(folder + u"/other"_s, "new")) << "no half file";
        EXPECT_EQ(contentOf(path), "old");
        EXPECT_EQ(namesIn(folder), names);

        ASSERT_TRUE(QFile::remove(filler));
        EXPECT_TRUE(replaceFile(path, "new"));
        EXPECT_EQ(contentOf(path), "new");
    });
}

TEST(RemoveLeftovers, RemovesWhatACrashLeftOfThatFileAlone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"store"_s);
    const QStringList others =
        u"other.part-abcdef store store.abcdef store.part-abcde store.part-abcdefg store.part-abcde1"_s.split(
            u' ');
    const QStringList leftovers{u"store.part-abcdef"_s, u"store.part-zyxwvu"_s};
    for (const QString &name : others + leftovers)
        ASSERT_TRUE(write(folder.filePath(name), "content"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"store.part-folder"_s));
    removeLeftovers(path);
    const QStringList left = namesIn(folder.path());
    EXPECT_EQ(QSet<QString>(left.begin(), left.end()), QSet<QString>(others.begin(), others.end())
                                                           << u"store.part-folder"_s);
}

TEST(RemoveLeftovers, LooksWhereALinkLeads)
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"store"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"elsewhere"_s));
    ASSERT_TRUE(QFile::link(u"elsewhere/target"_s, link));
    ASSERT_TRUE(write(folder.filePath(u"elsewhere/target.part-abcdef"_s), "content"));
    removeLeftovers(link);
    EXPECT_EQ(namesIn(folder.filePath(u"elsewhere"_s)), QStringList());
}

TEST(RemoveLeftovers, HasNothingToDoWhereThereIsNoFolder)
{
    const QTemporaryDir folder;
    removeLeftovers(folder.filePath(u"missing/store"_s));
    EXPECT_EQ(namesIn(folder.path()), QStringList());
}

} // namespace keyvora
