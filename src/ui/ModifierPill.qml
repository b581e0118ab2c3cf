// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// Switches the filter for one modifier key.
T.CheckBox {
    id: root

    required property string token
    required property AppModel appModel

    // A key that is held presses once.
    function press(event: var): void {
        if (!event.isAutoRepeat)
            root.clicked();
    }

    implicitWidth: Math.max(42, implicitContentWidth + 20)
    implicitHeight: 30
    checked: Array.from(root.appModel.modifierTokens).includes(root.token)
    // The model decides what is on; the pill follows.
    nextCheckState: () => root.checkState
    opacity: root.down ? 0.7 : 1
    onClicked: root.appModel.toggleModifierToken(root.token)
    Accessible.name: root.token + " " + Localized.spokenKeys([root.token], Localized.czech)
    Accessible.onPressAction: root.clicked()
    Accessible.onToggleAction: root.clicked()
    Keys.onReturnPressed: event => root.press(event)
    Keys.onEnterPressed: event => root.press(event)

    contentItem: PlainLabel {
        text: root.token
        size: 15
        color: root.checked ? Theme.accentInk : Theme.ink
        horizontalAlignment: Text.AlignHCenter
    }
    background: RoundedRectangle {
        radius: 9
        color: root.checked ? Theme.accent : Theme.glass
        borderWidth: root.checked ? 0 : Theme.hairlineWidth
        borderColor: Theme.hairline

        RoundedRectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Theme.hoverFill
            visible: root.hovered && !root.checked
        }
        FocusRing {
            control: root
            cornerRadius: 9
        }
    }
}
