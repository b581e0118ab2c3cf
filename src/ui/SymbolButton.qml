// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A small button that is a symbol alone; its text is its name.
T.Button {
    id: root

    property string symbol: ""
    property real size: 16

    // A key that is held presses once.
    function press(event: var): void {
        if (!event.isAutoRepeat)
            root.clicked();
    }

    implicitWidth: 28
    implicitHeight: 28
    opacity: root.down ? 0.7 : 1
    Accessible.name: root.text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: event => root.press(event)
    Keys.onEnterPressed: event => root.press(event)

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
