// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A pane of glass with a symbol on a tinted tile, a title, and what belongs to them.
RoundedRectangle {
    id: root

    property string symbol: ""
    property string title: ""
    property color tint: Theme.accent
    default property alias content: column.data

    readonly property int padding: 14

    implicitHeight: column.height + 2 * root.padding
    radius: 16
    color: Theme.glass
    borderWidth: Theme.hairlineWidth
    borderColor: Theme.hairline

    Column {
        id: column
        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
        spacing: 12

        Item {
            width: parent.width
            height: Math.max(tile.height, heading.implicitHeight)

            RoundedRectangle {
                id: tile
                width: 30
                height: 30
                radius: 8
                color: Theme.soft(root.tint)

                Symbol {
                    anchors.centerIn: parent
                    name: root.symbol
                    size: 18
                    color: root.tint
                }
            }
            PlainLabel {
                id: heading
                anchors.left: tile.right
                anchors.leftMargin: 10
                anchors.right: parent.right
                height: parent.height
                text: root.title
                size: 14
                font.weight: Theme.strongWeight
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
        }
    }
}
