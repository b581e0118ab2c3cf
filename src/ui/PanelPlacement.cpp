// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelPlacement.h"

#include <algorithm>

namespace keyvora {

namespace {

constexpr int gap = 8;

int within(int position, int length, int first, int last)
{
    return std::max(first, std::min(position, last - length + 1));
}

} // namespace

QPoint panelPosition(QSize panel, QPoint anchor, const QRect &available)
{
    const bool isAtTop = anchor.y() < available.center().y();
    const int y = isAtTop ? anchor.y() + gap : anchor.y() - gap - panel.height();
    return {within(anchor.x() - panel.width() / 2, panel.width(), available.left() + gap,
                   available.right() - gap),
            within(y, panel.height(), available.top() + gap, available.bottom() - gap)};
}

} // namespace keyvora
