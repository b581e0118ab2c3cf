// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// One row of the sidebar.
T.ItemDelegate {
    id: root

    required property string symbol
    // Not `text`: see `PressButton`.
    required property string label
    property bool selected: false

    implicitHeight: 30
    focusPolicy: Qt.NoFocus
    opacity: root.down ? 0.7 : 1
    Accessible.name: root.label
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Item {
            x: 8
            width: 19
            height: parent.height

            Symbol {
                anchors.centerIn: parent
                name: root.symbol
                size: 15
                color: root.selected ? Theme.accentText : Theme.secondaryInk
            }
        }
        PlainLabel {
            x: 35
            width: parent.width - x - 8
            height: parent.height
            text: root.label
            size: 12.5
            color: root.selected ? Theme.accentText : Theme.ink
            font.weight: root.selected ? Theme.strongWeight : Theme.regularWeight
        }
    }
    background: RoundedRectangle {
        radius: 8
        borderWidth: Theme.highContrast && root.selected ? Theme.hairlineWidth : 0
        // Not that of the ring around what has the keyboard.
        borderColor: Theme.hairline
        color: root.selected ? Theme.softAccent : root.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            control: root
            gap: -1
        }
    }
}
