// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A button that is nothing but its label until the pointer or the keyboard reaches it. Its label is inside of a padding,
// so that there is more to hit than to see.
PressButton {
    id: root

    property string symbol: ""
    property real size: 12
    property int weight: Theme.regularWeight
    property color color: Theme.ink

    implicitWidth: Math.ceil(implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.ceil(implicitContentHeight + topPadding + bottomPadding)
    verticalPadding: 5
    horizontalPadding: 8
    opacity: !root.enabled ? 0.5 : root.down ? 0.7 : 1

    contentItem: PlainLabel {
        leftPadding: root.symbol.length > 0 ? 24 : 0
        text: root.label
        size: root.size
        color: root.color
        font.weight: root.weight

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol.length > 0
            name: root.symbol
            color: root.color
        }
    }
    background: RoundedRectangle {
        radius: 8
        color: root.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            control: root
            gap: -1
        }
    }
}
