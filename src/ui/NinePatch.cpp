// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/NinePatch.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace keyvora {

namespace {

/// A stretch of a line, where it is drawn and where it comes from.
struct Stretch
{
    int to = 0;
    int from = 0;
    int length = 0;
    bool isMiddle = false;
};

std::vector<Stretch> stretches(int length, int pictureLength, int border)
{
    if (length == pictureLength)
        return {{0, 0, length, false}};
    std::vector<Stretch> all;
    // QPainter takes an empty part of a picture for the whole of it.
    if (border > 0)
        all.push_back({0, 0, border, false});
    for (int to = border; to < length - border; to += NinePatch::tile)
        all.push_back({to, border, std::min(NinePatch::tile, length - border - to), true});
    if (border > 0)
        all.push_back({length - border, pictureLength - border, border, false});
    return all;
}

} // namespace

void NinePatch::drawFrame(const QRect &place, QPainter &painter) const
{
    const std::vector<Stretch> columns = stretches(place.width(), image.width(), border);
    for (const Stretch &row : stretches(place.height(), image.height(), border)) {
        for (const Stretch &column : columns) {
            if (!row.isMiddle || !column.isMiddle)
                painter.drawImage(place.topLeft() + QPoint(column.to, row.to), image,
                                  QRect(column.from, row.from, column.length, row.length));
        }
    }
}

QRect NinePatch::middleOf(const QRect &place) const
{
    if (place.width() == image.width() || place.height() == image.height())
        return {};
    return place.adjusted(border, border, -border, -border);
}

} // namespace keyvora
