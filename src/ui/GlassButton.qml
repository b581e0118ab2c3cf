// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A quiet button on a translucent surface.
PressButton {
    id: root

    property string symbol: ""
    property string trailingSymbol: ""

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 32
    leftPadding: 13
    rightPadding: 13
    spacing: 8
    opacity: !root.enabled ? 0.5 : root.down ? 0.7 : 1

    contentItem: Row {
        spacing: root.spacing

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol.length > 0
            name: root.symbol
        }
        PlainLabel {
            height: parent.height
            text: root.label
            size: 11
            font.weight: Theme.mediumWeight
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.trailingSymbol.length > 0
            name: root.trailingSymbol
            size: 14
        }
    }
    background: RoundedRectangle {
        radius: 10
        color: Theme.glass
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline

        RoundedRectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Theme.hoverFill
            visible: root.hovered
        }
        FocusRing {
            control: root
            cornerRadius: 10
        }
    }
}
