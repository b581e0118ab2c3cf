// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PdfFile.h"

#include "unit/QtPrinters.h"

#include <QBuffer>
#include <QHashSeed>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const PdfInfo info{.title = u"Tahák ⌘ (1)"_s,
                   .author = u"Keyvora"_s,
                   .created = QDateTime({2023, 11, 14}, {1, 2, 3}, Qt::UTC)};

/// What the toolkit writes for a page with several fonts.
QByteArray written()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(u"1 0 R"_s);
    QPainter painter(&writer);
    for (const QFont::Weight weight :
         {QFont::Thin, QFont::Normal, QFont::Medium, QFont::Bold, QFont::Black}) {
        QFont font(u"Inter"_s);
        font.setWeight(weight);
        painter.setFont(font);
        painter.drawText(QPointF(100, static_cast<int>(weight)), u"Text"_s);
    }
    painter.end();
    return bytes;
}

} // namespace

TEST(PdfFile, SaysWhatItIsToldToSay)
{
    const auto file = PdfFile::parse(written());
    ASSERT_TRUE(file);
    const QByteArray bytes = file->withInfo(info);
    EXPECT_TRUE(bytes.contains("/Title <FEFF00540061006800E1006B002023180020002800310029>"));
    EXPECT_TRUE(bytes.contains("/Author <FEFF004B006500790076006F00720061>"));
    EXPECT_TRUE(bytes.contains("/CreationDate (D:20231114010203Z)"));
    EXPECT_EQ(bytes.count("/CreationDate"), 1);
    EXPECT_TRUE(bytes.contains("/ID [<"));
}

TEST(PdfFile, TellsTimesInUtc)
{
    const auto file = PdfFile::parse(written());
    ASSERT_TRUE(file);
    PdfInfo elsewhere = info;
    elsewhere.created = info.created.toOffsetFromUtc(2 * 60 * 60);
    EXPECT_EQ(file->withInfo(elsewhere), file->withInfo(info));
}

TEST(PdfFile, IsTheSameBytesWhateverTheOrderOfFonts)
{
    QSet<QByteArray> originals;
    QSet<QByteArray> results;
    for (int round = 0; round < 20; ++round) {
        QHashSeed::resetRandomGlobalSeed();
        QByteArray original = written();
        const qsizetype date = original.indexOf("/CreationDate");
        originals.insert(original.remove(date, original.indexOf('\n', date) - date));
        const auto file = PdfFile::parse(written());
        ASSERT_TRUE(file);
        results.insert(file->withInfo(info));
    }
    EXPECT_GT(originals.size(), 1) << "chance no longer plays a part: this need not be undone";
    EXPECT_EQ(results.size(), 1);
}

TEST(PdfFile, HasAnotherIdWithAnotherContent)
{
    const auto file = PdfFile::parse(written());
    ASSERT_TRUE(file);
    PdfInfo other = info;
    other.title = u"Other"_s;
    const auto idOf = [](const QByteArray &bytes) {
        return bytes.mid(bytes.indexOf("/ID ["), 72);
    };
    EXPECT_NE(idOf(file->withInfo(info)), idOf(file->withInfo(other)));
}

TEST(PdfFile, CanBeTakenApartAgain)
{
    const auto file = PdfFile::parse(written());
    ASSERT_TRUE(file);
    const QByteArray once = file->withInfo(info);
    const auto again = PdfFile::parse(once);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->withInfo(info), once);
}

TEST(PdfFile, IsNothingElse)
{
    EXPECT_FALSE(PdfFile::parse({}));
    EXPECT_FALSE(PdfFile::parse("%PDF-1.6\n"));
    EXPECT_FALSE(PdfFile::parse("startxref\n0\n%%EOF"));
    EXPECT_FALSE(PdfFile::parse("startxref\n99999999999999999999\n%%EOF"));
    EXPECT_FALSE(PdfFile::parse("xref\n0 1000000000\ntrailer\n<< /Root 1 0 R >>\nstartxref\n0\n%%EOF"));
    const QByteArray whole = written();
    for (qsizetype length = 0; length < whole.size() - 6; length += 97)
        EXPECT_FALSE(PdfFile::parse(whole.left(length))) << length;
}

} // namespace keyvora
