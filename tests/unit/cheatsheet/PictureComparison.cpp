// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "unit/cheatsheet/PictureComparison.h"

#include <algorithm>
#include <cstdlib>

namespace keyvora {

namespace {

constexpr int tileSide = 8;

/// The sum of the differences in a square, as far as it is inside.
double differenceOfTile(const QImage &left, const QImage &right, QPoint corner)
{
    int sum = 0;
    for (int y = corner.y(); y < std::min(corner.y() + tileSide, left.height()); ++y) {
        for (int x = corner.x(); x < std::min(corner.x() + tileSide, left.width()); ++x)
            sum += std::abs(left.constScanLine(y)[x] - right.constScanLine(y)[x]);
    }
    return sum;
}

} // namespace

PictureDifference comparePictures(const QImage &left, const QImage &right)
{
    PictureDifference difference;
    difference.isSameSize = left.size() == right.size() && !left.isNull();
    if (!difference.isSameSize)
        return difference;
    const QImage first = left.convertToFormat(QImage::Format_Grayscale8);
    const QImage second = right.convertToFormat(QImage::Format_Grayscale8);
    double sum = 0;
    for (int y = 0; y < first.height(); y += tileSide) {
        for (int x = 0; x < first.width(); x += tileSide) {
            const double ofTile = differenceOfTile(first, second, {x, y});
            sum += ofTile;
            if (ofTile / (tileSide * tileSide) > difference.worstTile) {
                difference.worstTile = ofTile / (tileSide * tileSide);
                difference.worstPlace = {x, y};
            }
        }
    }
    difference.mean = sum / first.width() / first.height();
    return difference;
}

} // namespace keyvora
