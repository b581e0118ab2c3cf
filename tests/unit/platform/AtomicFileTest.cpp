// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/AtomicFile.h"

#include "unit/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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

} // namespace keyvora
