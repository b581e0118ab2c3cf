// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Whether an answer was right, by symbol, text and colour, and the keys that would have been. Screen readers tell it when it
// comes.
Column {
    id: root

    required property bool isCorrect
    required property list<string> keys
    required property color tint

    spacing: 8
    Accessible.role: Accessible.AlertMessage
    Accessible.name: verdict.text
    Accessible.description: root.isCorrect ? "" : Localized.spokenKeys(root.keys, Localized.czech)

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        height: 20
        spacing: 7

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.isCorrect ? "check_circle-fill" : "cancel-fill"
            color: root.tint
            size: 18
        }
        PlainLabel {
            id: verdict
            height: parent.height
            text: root.isCorrect ? (Localized.czech ? "Správně" : "Correct")
                                 : (Localized.czech ? "Zkuste si zapamatovat správnou kombinaci" : "Try to remember the correct combination")
            size: 13.5
            font.weight: Theme.strongWeight
            Accessible.ignored: true
        }
    }
    Item {
        id: place

        width: parent.width
        height: 30
        visible: !root.isCorrect
        clip: caps.implicitWidth > place.width

        KeyCaps {
            id: caps
            // The modifiers come first.
            x: Math.max(0, (place.width - caps.implicitWidth) / 2)
            anchors.verticalCenter: parent.verticalCenter
            keys: root.keys // qmllint disable type
            availableWidth: place.width
        }
    }
}
