// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// One format of the cheat sheet to choose from.
T.RadioButton {
    id: root

    required property string detail
    required property string symbol

    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 14
    opacity: root.down ? 0.7 : 1
    Accessible.name: root.text
    Accessible.description: root.detail
    Accessible.onPressAction: root.clicked()
    Accessible.onToggleAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Column {
        spacing: 2

        Symbol {
            name: root.symbol
            size: 20
            color: Theme.accent
        }
        Item {
            width: 1
            height: 6
        }
        PlainLabel {
            width: parent.width
            text: root.text
            size: 13
            font.weight: Theme.strongWeight
        }
        PlainLabel {
            width: parent.width
            text: root.detail
            size: 11.5
            color: Theme.secondaryInk
            wrapMode: Text.Wrap
        }
    }
    background: RoundedRectangle {
        radius: 12
        color: root.checked ? Theme.softAccent : Theme.capFill
        borderWidth: root.checked ? Theme.strongLineWidth : Theme.hairlineWidth
        borderColor: root.checked ? Theme.accent : Theme.hairline

        RoundedRectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Theme.hoverFill
            visible: root.hovered && !root.checked
        }
        FocusRing {
            control: root
            cornerRadius: 12
        }
    }
}
