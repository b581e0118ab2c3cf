// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// What the sidebar stands on, with the program's sign. What it is given stands beside the sign.
Item {
    default property alias besideSign: beside.data

    readonly property real headHeight: tile.y + tile.height + 13

    implicitWidth: 230

    Rectangle {
        anchors.fill: parent
        color: Theme.sidebarGlass
    }
    RoundedRectangle {
        anchors.right: parent.right
        width: Theme.hairlineWidth
        height: parent.height
        color: Theme.hairline
    }
    BrandTile {
        id: tile
        x: 18
        y: 18
    }
    Column {
        id: beside
        anchors.left: tile.right
        anchors.leftMargin: 10
        anchors.verticalCenter: tile.verticalCenter
    }
}
