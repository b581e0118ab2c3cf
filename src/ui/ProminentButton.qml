// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The button of the action that most people want.
PressButton {
    id: root

    property string symbol: ""
    property int weight: Theme.strongWeight

    implicitWidth: Math.ceil(implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: 32
    leftPadding: 14
    rightPadding: 14
    opacity: !root.enabled ? 0.5 : root.down ? 0.7 : 1

    contentItem: Item {
        implicitWidth: (children[0] as Row).implicitWidth

        Row {
            anchors.centerIn: parent
            height: parent.height
            spacing: 8

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.symbol.length > 0
                name: root.symbol
                color: Theme.accentInk
            }
            PlainLabel {
                height: parent.height
                text: root.label
                size: 12
                color: Theme.accentInk
                font.weight: root.weight
            }
        }
    }
    background: RoundedRectangle {
        radius: 8
        color: root.hovered ? Qt.lighter(Theme.accent, 1.06) : Theme.accent

        FocusRing {
            control: root
        }
    }
}
