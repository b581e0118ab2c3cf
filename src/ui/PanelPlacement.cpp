// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelPlacement.h"

#include <algorithm>
#include <array>
#include <utility>

namespace keyvora {

namespace {

constexpr int gap = 8;
constexpr int cornerMargin = 22;
constexpr int cornerGap = 12;
constexpr int mostHalfBar = 24;

enum class Edge : quint8 {
    Top,
    Bottom,
    Left,
    Right,
};

/// One side of the screen, as the icon has it.
struct Side
{
    Edge edge;
    int distance;   ///< of the icon, which is in the middle of its bar
    bool isOutside; ///< the icon lies beyond what is available
};

Side sideOf(const PanelAnchor &anchor)
{
    const QPoint point = anchor.point;
    const QRect &screen = anchor.screen.geometry;
    const QRect &available = anchor.screen.available;
    const std::array sides{
        Side{Edge::Top, point.y() - screen.top(), point.y() < available.top()},
        Side{Edge::Bottom, screen.bottom() - point.y(), point.y() > available.bottom()},
        Side{Edge::Left, point.x() - screen.left(), point.x() < available.left()},
        Side{Edge::Right, screen.right() - point.x(), point.x() > available.right()},
    };
    // In a corner both edges are the icon's own, and bars along the top or the bottom are the usual ones.
    const auto rank = [](const Side &side) {
        return std::pair(!side.isOutside, std::max(side.distance, mostHalfBar));
    };
    return *std::ranges::min_element(sides, {}, rank);
}

/// A bar without a space of its own is as thick beyond the icon as before it, within reason.
int halfBar(const Side &side)
{
    return std::min(side.distance, mostHalfBar);
}

int within(int position, int length, int first, int last)
{
    return std::max(first, std::min(position, last - length + 1));
}

} // namespace

PanelAnchor panelAnchor(QPoint click, QPoint pointer, const QList<ScreenArea> &screens)
{
    // Hosts that know no position tell the null one.
    for (const QPoint point : {click.isNull() ? pointer : click, pointer}) {
        const auto holdsPoint = [point](const ScreenArea &screen) {
            return screen.geometry.contains(point);
        };
        const auto screen = std::ranges::find_if(screens, holdsPoint);
        if (screen != screens.end())
            return {point, *screen};
    }
    return {screens.constFirst().available.topRight(), screens.constFirst()};
}

QPoint panelPosition(QSize panel, const PanelAnchor &anchor)
{
    const QRect &available = anchor.screen.available;
    const QPoint icon = anchor.point;
    const Side side = sideOf(anchor);
    QPoint position = icon - QPoint(panel.width() / 2, panel.height() / 2);
    switch (side.edge) {
    case Edge::Top:
        position.setY((side.isOutside ? available.top() : icon.y() + halfBar(side)) + gap);
        break;
    case Edge::Bottom:
        position.setY((side.isOutside ? available.bottom() : icon.y() - halfBar(side)) + 1 - gap -
                      panel.height());
        break;
    case Edge::Left:
        position.setX((side.isOutside ? available.left() : icon.x() + halfBar(side)) + gap);
        break;
    case Edge::Right:
        position.setX((side.isOutside ? available.right() : icon.x() - halfBar(side)) + 1 - gap -
                      panel.width());
        break;
    }
    return {within(position.x(), panel.width(), available.left() + gap, available.right() - gap),
            within(position.y(), panel.height(), available.top() + gap, available.bottom() - gap)};
}

QPoint cornerPosition(QSize window, int offset, const QRect &available)
{
    return {available.left() + available.width() - window.width() - cornerMargin,
            available.top() + cornerMargin + offset};
}

int cornerOffsetBelow(QSize window, const QRect &other, const QRect &available)
{
    const QRect place(cornerPosition(window, 0, available), window);
    if (!place.intersects(other))
        return 0;
    const int offset = other.top() + other.height() + cornerGap - place.top();
    return place.bottom() + offset <= available.bottom() ? offset : 0;
}

} // namespace keyvora
