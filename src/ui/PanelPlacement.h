// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

namespace keyvora {

/// A screen: all of it, and the part that the desktop's bars leave to windows.
struct ScreenArea
{
    QRect geometry;
    QRect available;

    friend bool operator==(const ScreenArea &, const ScreenArea &) = default;
};

/// The icon that a panel belongs to, and the screen that shows it.
struct PanelAnchor
{
    QPoint point;
    ScreenArea screen;

    friend bool operator==(const PanelAnchor &, const PanelAnchor &) = default;
};

/// Where the icon is that was clicked: at `click`, or at the `pointer` where the click is null or on no
/// screen, or else in the top right corner of what the main screen has available. The main screen is the
/// first of `screens`; there is one at least.
PanelAnchor panelAnchor(QPoint click, QPoint pointer, const QList<ScreenArea> &screens);

/// Where a panel goes that belongs to an icon: on the inner side of the screen edge that the icon is at,
/// centred on it, and whole within what the screen has available. A bar that reserves space tells the edge;
/// of one that does not, it is the nearest.
QPoint panelPosition(QSize panel, const PanelAnchor &anchor);

/// Where a window goes that belongs into the top right corner of the `available` part of the screen, at a
/// margin from its edges and `offset` below its place.
QPoint cornerPosition(QSize window, int offset, const QRect &available);

/// How far below its place in the top right corner a window has to go in order not to cover `other`; 0 where
/// it does not, or where it would not be whole on the screen there.
int cornerOffsetBelow(QSize window, const QRect &other, const QRect &available);

} // namespace keyvora
