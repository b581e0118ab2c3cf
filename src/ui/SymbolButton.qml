// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A small button that is a symbol alone; its label is its name.
PressButton {
    id: root

    property string symbol: ""
    property real size: 16

    implicitWidth: 28
    implicitHeight: 28
    opacity: root.down ? 0.7 : 1

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: root.size
            color: root.hovered || root.activeFocus ? Theme.ink : Theme.secondaryInk
        }
    }
    background: RoundedRectangle {
        radius: 8
        color: root.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            control: root
            gap: 0
        }
    }
}
