// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PaperPlacement.h"

#include <algorithm>

namespace keyvora {

namespace {

qreal scaleToFit(QSizeF page, QSizeF paper)
{
    return std::min({1.0, paper.width() / page.width(), paper.height() / page.height()});
}

} // namespace

QTransform placeOnPaper(QSizeF page, QSizeF paper)
{
    if (page.isEmpty() || paper.isEmpty())
        return {};
    const qreal upright = scaleToFit(page, paper);
    const qreal turned = scaleToFit(page.transposed(), paper);
    QTransform transform;
    transform.translate(paper.width() / 2, paper.height() / 2);
    if (turned > upright)
        transform.rotate(90);
    const qreal scale = std::max(upright, turned);
    transform.scale(scale, scale);
    transform.translate(-page.width() / 2, -page.height() / 2);
    return transform;
}

} // namespace keyvora
