// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "unit/cheatsheet/PictureComparison.h"

#include "cheatsheet/SheetPainter.h"
#include "cheatsheet/StickerList.h"
#include "unit/cheatsheet/Sheets.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

QImage pictureOf(const SheetElements &elements, QSize size)
{
    constexpr qreal scale = 100 / 72.0;
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintSheet(painter, elements);
    return image;
}

class PictureComparison : public testing::Test
{
protected:
    /// Compares the sheet with one that was changed.
    template <typename Change>
    PictureDifference differenceAfter(Change change)
    {
        SheetElements elements = m_view.elements();
        change(elements);
        return comparePictures(pictureOf(m_view.elements(), m_view.size()),
                               pictureOf(elements, m_view.size()));
    }

private:
    Speaking m_language{AppLanguage::Czech};
    PrintableCheatSheetView m_view{stickerList(AppLanguage::Czech), CheatSheetSize::a4};
};

} // namespace

TEST_F(PictureComparison, FindsTheSameTolerable)
{
    const PictureDifference difference = differenceAfter([](SheetElements &) {});
    EXPECT_TRUE(difference.isTolerable());
    EXPECT_EQ(difference.mean, 0);
}

TEST_F(PictureComparison, FindsSmootherEdgesTolerable)
{
    const PictureDifference difference = differenceAfter([](SheetElements &elements) {
        for (SheetText &text : elements.texts)
            text.opacity *= 0.98;
    });
    EXPECT_GT(difference.mean, 0);
    EXPECT_TRUE(difference.isTolerable()) << difference.mean << ' ' << difference.worstTile;
}

TEST_F(PictureComparison, NoticesAMissingCap)
{
    for (const qsizetype cap : {0, 1, 2, 30}) { // the first is a cell's outline
        EXPECT_FALSE(differenceAfter([cap](SheetElements &elements) {
                         elements.outlines.removeAt(cap);
                     }).isTolerable());
    }
}

TEST_F(PictureComparison, NoticesAShiftedCap)
{
    for (const QPointF shift : {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)}) {
        const PictureDifference difference =
            differenceAfter([shift](SheetElements &elements) { elements.outlines[1].rect.translate(shift); });
        EXPECT_FALSE(difference.isTolerable()) << difference.worstTile;
    }
}

TEST_F(PictureComparison, NoticesAMissingOrShiftedLetter)
{
    EXPECT_FALSE(differenceAfter([](SheetElements &elements) { elements.texts.removeAt(4); }).isTolerable());
    EXPECT_FALSE(differenceAfter([](SheetElements &elements) {
                     elements.texts[4].baseline += QPointF(1, 0);
                 }).isTolerable());
}

TEST_F(PictureComparison, NoticesAMissingSignOrRule)
{
    EXPECT_FALSE(differenceAfter([](SheetElements &elements) { elements.signs.clear(); }).isTolerable());
    EXPECT_FALSE(differenceAfter([](SheetElements &elements) { elements.rules.clear(); }).isTolerable());
}

TEST_F(PictureComparison, TellsWhere)
{
    const PictureDifference difference =
        differenceAfter([](SheetElements &elements) { elements.signs.clear(); });
    EXPECT_TRUE(QRect(30, 30, 50, 50).contains(difference.worstPlace));
}

TEST_F(PictureComparison, NoticesAnotherSize)
{
    const QImage image(20, 20, QImage::Format_Grayscale8);
    EXPECT_FALSE(comparePictures(image, image.copy(0, 0, 20, 19)).isTolerable());
    EXPECT_FALSE(comparePictures(QImage(), QImage()).isTolerable());
}

} // namespace keyvora
