// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintService.h"
#include "cheatsheet/StickerList.h"
#include "platform/MakersDomain.h"
#include "unit/cheatsheet/PdfTools.h"
#include "unit/cheatsheet/PictureComparison.h"
#include "unit/cheatsheet/Sheets.h"

#include <QDir>

#include <gtest/gtest.h>
#include <tuple>

namespace keyvora {

namespace {

/// Fine enough to see a letter of the card.
int dotsPerInch(CheatSheetSize size)
{
    return size == CheatSheetSize::wallet ? 200 : 100;
}

class ReferencePicture : public testing::TestWithParam<std::tuple<CheatSheetSize, AppLanguage>>
{
};

std::string nameOf(const testing::TestParamInfo<std::tuple<CheatSheetSize, AppLanguage>> &test)
{
    return (rawValue(std::get<0>(test.param)) + u'_' + rawValue(std::get<1>(test.param))).toStdString();
}

} // namespace

/// Each page as it was when somebody last looked at it and found it good.
TEST_P(ReferencePicture, IsWhatThePageLooksLike)
{
    if (makersDomain() != u"keyvora.example"_s)
        GTEST_SKIP() << "the pictures show another web domain";
    const auto [size, spoken] = GetParam();
    const Speaking language(spoken);
    const PrintService service(&QDateTime::currentDateTimeUtc);
    const auto document = service.makePDF(size, stickerList(spoken));
    ASSERT_TRUE(document);

    const QString name = rawValue(size) + u'-' + rawValue(spoken) + u".png"_s;
    const QByteArray picture = PdfTools(*document).picture(dotsPerInch(size));
    QDir().mkpath(QStringLiteral(KEYVORA_DRAWN_PICTURES));
    QFile drawn(QStringLiteral(KEYVORA_DRAWN_PICTURES) + u'/' + name);
    ASSERT_TRUE(drawn.open(QIODevice::WriteOnly));
    drawn.write(picture);
    drawn.close();

    const PictureDifference difference = comparePictures(
        QImage(QStringLiteral(KEYVORA_TEST_DATA) + u"/cheatsheet/"_s + name), QImage::fromData(picture));
    EXPECT_TRUE(difference.isTolerable())
        << drawn.fileName().toStdString() << " differs by " << difference.mean << ", and by "
        << difference.worstTile << " at " << difference.worstPlace.x() << ", " << difference.worstPlace.y();
}

INSTANTIATE_TEST_SUITE_P(Pages, ReferencePicture,
                         testing::Combine(testing::ValuesIn(allCheatSheetSizes),
                                          testing::ValuesIn(allLanguages)),
                         nameOf);

} // namespace keyvora
