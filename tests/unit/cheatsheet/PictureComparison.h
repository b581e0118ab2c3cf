// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>

namespace keyvora {

/// How two pictures differ, in levels of grey from 0 to 255.
struct PictureDifference
{
    bool isSameSize = false;
    double mean = 0;      ///< over the whole picture
    double worstTile = 0; ///< over the small square that differs most
    QPoint worstPlace;    ///< that square's upper left corner

    /// Another renderer may smooth the edges a little differently, everywhere; it moves nothing anywhere.
    [[nodiscard]] bool isTolerable() const { return isSameSize && mean <= 0.5 && worstTile <= 6; }
};

/// Compares pictures in shades of grey.
PictureDifference comparePictures(const QImage &left, const QImage &right);

} // namespace keyvora
