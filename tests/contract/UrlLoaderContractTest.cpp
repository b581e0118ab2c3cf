// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/Waiting.h"
#include "fakes/FakeUrlLoader.h"
#include "platform/WhenFinished.h"
#include "platform/linux/HelperUrlLoader.h"
#include "unit/QtPrinters.h"
#include "unit/platform/linux/Files.h"

#include <QTemporaryDir>
#include <QUrl>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

using Document = std::optional<QByteArray>;

/// A web with one document, or none, as the contract sees it.
class UrlLoaderBackend
{
public:
    virtual ~UrlLoaderBackend() = default;

    /// Null when this loader is gone.
    virtual UrlLoader *loader() = 0;
    virtual void loseLoader() = 0;
    virtual void publish(const Document &document) = 0;
    /// Lets the answers to what was asked come.
    virtual void answer() {}
};

class FakeBackend : public UrlLoaderBackend
{
public:
    UrlLoader *loader() override { return m_loader.get(); }
    void loseLoader() override { m_loader.reset(); }
    void publish(const Document &document) override { m_document = document; }
    void answer() override { m_loader->answer(m_document); }

private:
    std::unique_ptr<FakeUrlLoader> m_loader = std::make_unique<FakeUrlLoader>();
    Document m_document;
};

/// A helper that shows a file, if it is there and when it is told to.
class HelperBackend : public UrlLoaderBackend
{
public:
    HelperBackend()
    {
        EXPECT_TRUE(makeFifo(path(u"gate"_s)));
        EXPECT_TRUE(
            writeFile(path(u"helper"_s), "#!/bin/sh\ncd \"${0%/*}\"\nread -r go <gate\nexec cat document\n"));
        EXPECT_TRUE(QFile(path(u"helper"_s)).setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    UrlLoader *loader() override { return m_loader.get(); }
    void loseLoader() override { m_loader.reset(); }
    void publish(const Document &document) override
    {
        QFile::remove(path(u"document"_s));
        if (document) {
            EXPECT_TRUE(writeFile(path(u"document"_s), *document));
        }
    }
    void answer() override
    {
        // Open for reading, too, so that it waits for nobody; a line for each that may read.
        if (!m_gate.isOpen()) {
            EXPECT_TRUE(m_gate.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        }
        m_gate.write("go\ngo\ngo\n");
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QFile m_gate{m_folder.filePath(u"gate"_s)};
    std::unique_ptr<HelperUrlLoader> m_loader = std::make_unique<HelperUrlLoader>(path(u"helper"_s));
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<UrlLoaderBackend>()> makeBackend;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class UrlLoaderContract : public testing::TestWithParam<Row>
{
protected:
    UrlLoaderBackend &backend() { return *m_backend; }
    /// What the program hears of each load, in the order in which it comes.
    [[nodiscard]] const QList<Document> &answers() const { return m_answers; }
    [[nodiscard]] int unanswered() const { return m_unanswered; }

    void load()
    {
        const QUrl address(u"https://example.org/document"_s);
        whenFinished(backend().loader()->load(address), &m_context, [this](const auto &finished) {
            if (finished.resultCount() == 0)
                ++m_unanswered;
            else
                m_answers.append(finished.results());
        });
    }

    /// What comes of a load of this document.
    Document loaded(const Document &published)
    {
        m_answers.clear();
        backend().publish(published);
        load();
        backend().answer();
        EXPECT_TRUE(becomesTrue([this] { return !m_answers.isEmpty(); }));
        return m_answers.value(0);
    }

private:
    QObject m_context;
    QList<Document> m_answers;
    int m_unanswered = 0;
    std::unique_ptr<UrlLoaderBackend> m_backend = GetParam().makeBackend();
};

} // namespace

TEST_P(UrlLoaderContract, GivesTheDocument)
{
    const QByteArray binary("\0\x01\xFF{}\r\n", 7);
    for (const QByteArray &document :
         {QByteArray("{\"a\": 1}\n"), binary, QByteArray(""), QByteArray(UrlLoader::maximumBytes, 'x')})
        EXPECT_EQ(loaded(document), Document(document)) << document.size();
}

TEST_P(UrlLoaderContract, GivesNothingWhenThereIsNone)
{
    EXPECT_EQ(loaded(std::nullopt), std::nullopt);
}

TEST_P(UrlLoaderContract, GivesNothingInPlaceOfALargeDocument)
{
    for (const qsizetype size : {UrlLoader::maximumBytes + 1, 20 * UrlLoader::maximumBytes})
        EXPECT_EQ(loaded(QByteArray(size, 'x')), std::nullopt) << size;
}

TEST_P(UrlLoaderContract, AnswersEachLoadOnce)
{
    backend().publish("document");
    for (int count = 0; count < 3; ++count)
        load();
    EXPECT_TRUE(answers().isEmpty());
    backend().answer();
    EXPECT_TRUE(becomesTrue([this] { return answers().size() >= 3; }));
    QCoreApplication::processEvents();
    const Document expected("document");
    EXPECT_EQ(answers(), (QList<Document>{expected, expected, expected}));
    EXPECT_EQ(unanswered(), 0);
}

TEST_P(UrlLoaderContract, LeavesLoadsWithoutAResultWhenItGoes)
{
    load();
    load();
    backend().loseLoader();
    EXPECT_TRUE(becomesTrue([this] { return unanswered() + answers().size() == 2; }));
    EXPECT_EQ(unanswered(), 2);
}

INSTANTIATE_TEST_SUITE_P(Backends, UrlLoaderContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeBackend>();
                                             }},
                                         Row{"Helper",
                                             [] {
                                                 return std::make_unique<HelperBackend>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

} // namespace keyvora
