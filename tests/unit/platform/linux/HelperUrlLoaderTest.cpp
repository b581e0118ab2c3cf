// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/HelperUrlLoader.h"

#include "contract/Waiting.h"
#include "unit/QtPrinters.h"
#include "unit/platform/linux/Files.h"

#include <QTemporaryDir>
#include <QUrl>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

using Document = std::optional<QByteArray>;

constexpr std::chrono::milliseconds noPatience(1);
constexpr std::chrono::minutes muchPatience(10);

class HelperUrlLoaderTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// A helper that leaves its process id in "pid" and then does this, in a shell.
    [[nodiscard]] QString helper(const QByteArray &deeds) const
    {
        const QString file = path(u"helper"_s);
        EXPECT_TRUE(writeFile(file, "#!/bin/sh\ncd \"${0%/*}\"\necho $$ >pid.new && mv pid.new pid\n" +
                                        deeds + '\n'));
        EXPECT_TRUE(QFile(file).setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        return file;
    }

    static Document answer(HelperUrlLoader &loader, const QUrl &address = QUrl(u"https://example.org/"_s))
    {
        const auto future = loader.load(address);
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
        EXPECT_EQ(future.resultCount(), 1);
        return future.resultCount() > 0 ? future.result() : Document();
    }

    Document answer(const QByteArray &deeds)
    {
        HelperUrlLoader loader(helper(deeds), muchPatience);
        return answer(loader);
    }

    /// Whether the helper has been started and has been waited for since.
    [[nodiscard]] bool hasEnded() const
    {
        const int pid = contentOf(path(u"pid"_s)).trimmed().toInt();
        return pid > 0 && kill(pid, 0) == -1 && errno == ESRCH;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(HelperUrlLoaderTest, GivesTheHelperTheAddressAndNothingElse)
{
    HelperUrlLoader loader(helper("printf '%s\\n' \"$#\" \"$1\"; cat; ls -l /proc/self/fd/0 >stdin"),
                           muchPatience);
    EXPECT_EQ(answer(loader, QUrl(u"https://example.org/a b?c=ď&d='\"$(e)#f"_s)),
              QByteArray("1\nhttps://example.org/a%20b?c=%C4%8F&d='%22$(e)#f\n"));
    EXPECT_TRUE(contentOf(path(u"stdin"_s)).trimmed().endsWith("/dev/null"));
    EXPECT_TRUE(hasEnded());
}

TEST_F(HelperUrlLoaderTest, GivesNothingWhenTheHelperFails)
{
    for (const QByteArray &deeds :
         {QByteArray("exit 1"), QByteArray("echo document; exit 1"),
          QByteArray("echo document; kill -KILL $$"), QByteArray("echo document; kill -TERM $$")})
        EXPECT_EQ(answer(deeds), std::nullopt) << deeds.toStdString();
}

TEST_F(HelperUrlLoaderTest, GivesNothingWithoutAHelper)
{
    HelperUrlLoader missing(path(u"missing"_s));
    EXPECT_EQ(answer(missing), std::nullopt);
    EXPECT_TRUE(writeFile(path(u"text"_s), "no program"));
    HelperUrlLoader text(path(u"text"_s));
    EXPECT_EQ(answer(text), std::nullopt);
}

TEST_F(HelperUrlLoaderTest, PassesOverWhatTheHelperComplainsOf)
{
    EXPECT_EQ(answer("echo document; echo complaint >&2"), QByteArray("document\n"));
    // More than a pipe holds, so that it would stop a helper whose complaints were kept unread.
    EXPECT_EQ(answer("head -c 1000000 /dev/zero >&2; echo document"), QByteArray("document\n"));
}

TEST_F(HelperUrlLoaderTest, EndsAHelperThatWritesWithoutEnd)
{
    EXPECT_EQ(answer("exec cat /dev/zero"), std::nullopt);
    EXPECT_TRUE(hasEnded());
}

TEST_F(HelperUrlLoaderTest, EndsAHelperThatWillNotHearOfIt)
{
    ASSERT_TRUE(makeFifo(path(u"never"_s)));
    // Too much, and then deaf to the signals that can be ignored, that of a closed pipe among them.
    EXPECT_EQ(answer("trap '' TERM PIPE INT; head -c 70000 /dev/zero; exec cat never"), std::nullopt);
    EXPECT_TRUE(hasEnded());
}

TEST_F(HelperUrlLoaderTest, GivesUpWhenItsPatienceEnds)
{
    ASSERT_TRUE(makeFifo(path(u"never"_s)));
    HelperUrlLoader loader(helper("echo document; exec cat never"), noPatience);
    EXPECT_EQ(answer(loader), std::nullopt);
}

TEST_F(HelperUrlLoaderTest, LeavesNoHelperBehind)
{
    ASSERT_TRUE(makeFifo(path(u"never"_s)));
    QFuture<Document> future;
    {
        HelperUrlLoader loader(helper("exec cat never"), muchPatience);
        future = loader.load(QUrl(u"https://example.org/"_s));
        ASSERT_TRUE(becomesTrue([this] { return QFile::exists(path(u"pid"_s)); }));
        EXPECT_FALSE(hasEnded());
    }
    EXPECT_TRUE(hasEnded());
    EXPECT_TRUE(future.isFinished());
    EXPECT_EQ(future.resultCount(), 0);
}

} // namespace keyvora
