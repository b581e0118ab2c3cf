// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/UpdateChecker.h"

#include "fakes/FakeUrlLoader.h"
#include "model/Defaults.h"
#include "platform/MakersDomain.h"
#include "unit/QtPrinters.h"
#include "unit/Settle.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView key{"Keyvora.dismissedUpdateVersion"};

const auto page = u"https://example.org/get"_s;

QByteArray manifest(const QString &version, const QString &url = page,
                    const QJsonValue &notes = QJsonValue::Undefined)
{
    QJsonObject object{{u"version"_s, version}, {u"url"_s, url}};
    if (!notes.isUndefined())
        object.insert(u"notes"_s, notes);
    return QJsonDocument(object).toJson();
}

class UpdateCheckerTest : public testing::Test
{
protected:
    UpdateChecker &checker() { return *m_checker; }
    FakeUrlLoader &web() { return *m_web; }
    [[nodiscard]] const QList<QUrl> &openedPages() const { return m_openedPages; }
    [[nodiscard]] QString defaultsPath() const { return m_folder.filePath(u"defaults.json"_s); }
    /// What a later start would read.
    [[nodiscard]] std::optional<QString> stored() const { return Defaults(defaultsPath()).text(key); }

    /// The program ends and starts again, perhaps as another version.
    void restart(const QString &currentVersion = u"1.2"_s)
    {
        m_checker.reset();
        m_defaults = std::make_unique<Defaults>(defaultsPath());
        m_checker =
            std::make_unique<UpdateChecker>(*m_defaults, *m_web, currentVersion,
                                            [this](const QUrl &opened) { m_openedPages.append(opened); });
    }

    void check(const std::optional<QByteArray> &answer)
    {
        checker().checkForUpdate();
        web().answer(answer);
        settle();
    }

    void loseWeb() { m_web.reset(); }
    void loseChecker() { m_checker.reset(); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<FakeUrlLoader> m_web = std::make_unique<FakeUrlLoader>();
    QList<QUrl> m_openedPages;
    std::unique_ptr<Defaults> m_defaults = std::make_unique<Defaults>(defaultsPath());
    std::unique_ptr<UpdateChecker> m_checker = std::make_unique<UpdateChecker>(
        *m_defaults, *m_web, u"1.2"_s, [this](const QUrl &opened) { m_openedPages.append(opened); });
};

/// Counts what the checker says.
class Signals
{
public:
    explicit Signals(const UpdateChecker &checker)
        : version(&checker, &UpdateChecker::latestVersionChanged)
        , address(&checker, &UpdateChecker::downloadURLChanged)
        , notes(&checker, &UpdateChecker::notesChanged)
        , dismissed(&checker, &UpdateChecker::dismissedVersionChanged)
        , availability(&checker, &UpdateChecker::isUpdateAvailableChanged)
    {
    }

    /// In the order above; forgets them.
    QList<qsizetype> take()
    {
        QList<qsizetype> counts;
        for (QSignalSpy *spy : {&version, &address, &notes, &dismissed, &availability}) {
            counts.append(spy->size());
            spy->clear();
        }
        return counts;
    }

private:
    QSignalSpy version;
    QSignalSpy address;
    QSignalSpy notes;
    QSignalSpy dismissed;
    QSignalSpy availability;
};

} // namespace

TEST_F(UpdateCheckerTest, KnowsNothingBeforeItAsked)
{
    EXPECT_EQ(checker().latestVersion(), std::nullopt);
    EXPECT_EQ(checker().downloadURL(), std::nullopt);
    EXPECT_EQ(checker().notes(), std::nullopt);
    EXPECT_EQ(checker().dismissedVersion(), std::nullopt);
    EXPECT_FALSE(checker().isUpdateAvailable());
    EXPECT_FALSE(checker().hasDownloadPage());
    EXPECT_EQ(checker().shownVersion(), u""_s);
    EXPECT_EQ(checker().shownNotes(), u""_s);
    EXPECT_TRUE(web().addresses().isEmpty());
}

TEST_F(UpdateCheckerTest, AsksTheMakerOnce)
{
    EXPECT_EQ(updateManifestURL().toString(),
              u"https://"_s + makersDomain() + u"/downloads/keyvora/version.json"_s);
    checker().checkForUpdate();
    EXPECT_EQ(web().addresses(), QList<QUrl>{updateManifestURL()});
    web().answer(std::nullopt);
    settle();
    EXPECT_EQ(web().addresses().size(), 1);
}

TEST_F(UpdateCheckerTest, TellsOfANewerVersion)
{
    Signals counts(checker());
    check(manifest(u"1.10"_s, page, u"Faster."_s));
    EXPECT_EQ(checker().latestVersion(), u"1.10"_s);
    EXPECT_EQ(checker().downloadURL(), QUrl(page));
    EXPECT_EQ(checker().notes(), u"Faster."_s);
    EXPECT_TRUE(checker().isUpdateAvailable());
    EXPECT_EQ(counts.take(), (QList<qsizetype>{1, 1, 1, 0, 1}));
}

TEST_F(UpdateCheckerTest, KeepsWhatIsKnownOfAnOlderVersion)
{
    for (const QString &version : {u"1.1.9"_s, u"1.2"_s, u"1.2.0"_s, u"beta"_s, u""_s}) {
        check(manifest(version, page, u"Old news."_s));
        EXPECT_EQ(checker().latestVersion(), version);
        EXPECT_EQ(checker().downloadURL(), QUrl(page));
        EXPECT_EQ(checker().notes(), u"Old news."_s);
        EXPECT_FALSE(checker().isUpdateAvailable()) << version.toStdString();
    }
}

TEST_F(UpdateCheckerTest, ChangesNothingWhenTheCheckFails)
{
    check(manifest(u"1.3"_s, page, u"Faster."_s));
    Signals counts(checker());
    for (const std::optional<QByteArray> &answer :
         {std::optional<QByteArray>(), std::optional(QByteArray()), std::optional(QByteArray("<html>")),
          std::optional(QByteArray(R"({"version": 2, "url": "https://example.org"})")),
          std::optional(QByteArray(UrlLoader::maximumBytes + 1, ' '))}) {
        check(answer);
        EXPECT_EQ(checker().latestVersion(), u"1.3"_s);
        EXPECT_EQ(checker().downloadURL(), QUrl(page));
        EXPECT_EQ(checker().notes(), u"Faster."_s);
        EXPECT_TRUE(checker().isUpdateAvailable());
    }
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 0, 0, 0, 0}));
}

TEST_F(UpdateCheckerTest, SurvivesALoaderThatGoesAway)
{
    checker().checkForUpdate();
    loseWeb();
    settle();
    EXPECT_EQ(checker().latestVersion(), std::nullopt);
}

TEST_F(UpdateCheckerTest, HearsNoAnswerWhenItIsGone)
{
    const QSignalSpy news(&checker(), &UpdateChecker::latestVersionChanged);
    checker().checkForUpdate();
    loseChecker();
    web().answer(manifest(u"1.3"_s));
    settle();
    EXPECT_EQ(news.count(), 0);
}

TEST_F(UpdateCheckerTest, TellsRealChangesOnly)
{
    check(manifest(u"1.3"_s, page, u"Faster."_s));
    Signals counts(checker());
    check(manifest(u"1.3"_s, page, u"Faster."_s));
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 0, 0, 0, 0}));
    check(manifest(u"1.4"_s, page, u"Faster."_s));
    EXPECT_EQ(counts.take(), (QList<qsizetype>{1, 0, 0, 0, 0}));
    check(manifest(u"1.4"_s, u"https://example.org/other"_s));
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 1, 1, 0, 0}));
    checker().setDismissedVersion(u"1.3"_s);
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 0, 0, 1, 0}));
    checker().setDismissedVersion(u"1.4"_s);
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 0, 0, 1, 1}));
    checker().setDismissedVersion(u"1.4"_s);
    EXPECT_EQ(counts.take(), (QList<qsizetype>{0, 0, 0, 0, 0}));
}

TEST_F(UpdateCheckerTest, WhoeverHearsOfOneChangeSeesAllOfThem)
{
    bool saw = false;
    QObject::connect(&checker(), &UpdateChecker::latestVersionChanged, &checker(), [&] {
        saw = checker().downloadURL().has_value() && checker().notes().has_value() &&
              checker().isUpdateAvailable();
    });
    check(manifest(u"1.3"_s, page, u"Faster."_s));
    EXPECT_TRUE(saw);
}

TEST_F(UpdateCheckerTest, StaysSilentAboutASkippedVersion)
{
    check(manifest(u"1.3"_s));
    checker().skip();
    EXPECT_FALSE(checker().isUpdateAvailable());
    EXPECT_EQ(checker().dismissedVersion(), u"1.3"_s);
    EXPECT_EQ(stored(), u"1.3"_s);

    restart();
    EXPECT_EQ(checker().dismissedVersion(), u"1.3"_s);
    check(manifest(u"1.3"_s));
    EXPECT_FALSE(checker().isUpdateAvailable());
    check(manifest(u"1.3.1"_s));
    EXPECT_TRUE(checker().isUpdateAvailable());
}

TEST_F(UpdateCheckerTest, ComparesTheSkippedVersionAsText)
{
    checker().setDismissedVersion(u"1.3"_s);
    check(manifest(u"1.3.0"_s));
    EXPECT_TRUE(checker().isUpdateAvailable());
}

TEST_F(UpdateCheckerTest, WritesEveryAssignmentThrough)
{
    checker().setDismissedVersion(u"1.3"_s);
    EXPECT_EQ(stored(), u"1.3"_s);
    checker().setDismissedVersion(u""_s);
    EXPECT_EQ(stored(), u""_s);
    checker().setDismissedVersion(std::nullopt);
    EXPECT_EQ(stored(), std::nullopt);
    restart();
    EXPECT_EQ(checker().dismissedVersion(), std::nullopt);
    checker().setDismissedVersion(std::nullopt);
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(UpdateCheckerTest, HasNothingToSkipBeforeItKnows)
{
    checker().setDismissedVersion(u"1.3"_s);
    checker().skip();
    EXPECT_EQ(checker().dismissedVersion(), std::nullopt);
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(UpdateCheckerTest, PassesOverAStoredValueThatIsNoText)
{
    Defaults(defaultsPath()).setInteger(key, 7);
    restart();
    EXPECT_EQ(checker().dismissedVersion(), std::nullopt);
}

TEST_F(UpdateCheckerTest, IsVersionOneWhereNothingIsSaid)
{
    restart(u""_s);
    EXPECT_EQ(checker().currentVersion(), u"1.0"_s);
    check(manifest(u"1.0"_s));
    EXPECT_FALSE(checker().isUpdateAvailable());
    check(manifest(u"1.0.1"_s));
    EXPECT_TRUE(checker().isUpdateAvailable());
}

TEST_F(UpdateCheckerTest, HasNoAddressWhenItIsMalformed)
{
    for (const QString &url :
         {u""_s, u"https://example.org:port/"_s, u"https://[::1/"_s, u"1:2"_s, u"https://exa mple.org/"_s}) {
        check(manifest(u"1.3"_s));
        EXPECT_TRUE(checker().hasDownloadPage());
        check(manifest(u"1.3"_s, url));
        EXPECT_EQ(checker().downloadURL(), std::nullopt) << url.toStdString();
        EXPECT_FALSE(checker().hasDownloadPage());
        EXPECT_TRUE(checker().isUpdateAvailable());
    }
}

TEST_F(UpdateCheckerTest, OpensPagesOfTheWeb)
{
    const QStringList pages{page, u"http://example.org"_s, u"HTTPS://EXAMPLE.ORG/Get?a=b#c"_s,
                            u"https://příklad.cz/"_s};
    QList<QUrl> expected;
    for (const QString &url : pages) {
        check(manifest(u"1.3"_s, url));
        EXPECT_TRUE(checker().hasDownloadPage()) << url.toStdString();
        checker().openDownloadPage();
        expected.append(QUrl(url));
    }
    EXPECT_EQ(openedPages(), expected);
    EXPECT_TRUE(checker().isUpdateAvailable());
}

TEST_F(UpdateCheckerTest, OpensNothingElse)
{
    for (const QString &url : {u"file:///etc/passwd"_s, u"javascript:alert(1)"_s, u"ftp://example.org/get"_s,
                               u"https:///get"_s, u"https:get"_s, u"//example.org/get"_s,
                               u"example.org/get"_s, u"/usr/bin/true"_s, u"mailto:a@example.org"_s,
                               u"data:text/html,hello"_s, u"--help"_s, u"httpss://example.org"_s, u""_s}) {
        check(manifest(u"1.3"_s, url));
        EXPECT_FALSE(checker().hasDownloadPage()) << url.toStdString();
        checker().openDownloadPage();
    }
    EXPECT_TRUE(openedPages().isEmpty());
}

TEST_F(UpdateCheckerTest, ShowsTextsInOneLineAndOfABoundedLength)
{
    check(manifest(u"1.3"_s, page, u"  Faster.\n\nAnd\u202E finer.\t"_s));
    EXPECT_EQ(checker().shownVersion(), u"1.3"_s);
    EXPECT_EQ(checker().shownNotes(), u"Faster. And finer."_s);
    check(manifest(u"1."_s + QString(5000, u'3'), page, QString(5000, u'n')));
    EXPECT_TRUE(checker().isUpdateAvailable());
    EXPECT_EQ(checker().shownVersion(), u"1."_s + QString(37, u'3') + u'…');
    EXPECT_EQ(checker().shownNotes(), QString(399, u'n') + u'…');
    check(manifest(u"1.3"_s, page, u" \n "_s));
    EXPECT_EQ(checker().notes(), u" \n "_s);
    EXPECT_EQ(checker().shownNotes(), u""_s);
}

} // namespace keyvora
