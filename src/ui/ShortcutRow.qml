// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A shortcut in one line: its title and its keys.
Item {
    id: root

    required property string title
    required property list<string> keys
    property real size: 12.5
    property int weight: Theme.regularWeight

    implicitHeight: Math.max(21, label.implicitHeight)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: Localized.spokenKeys(root.keys, Localized.czech)

    PlainLabel {
        id: label
        width: parent.width - capsPlace.width - 12
        height: parent.height
        text: root.title
        size: root.size
        font.weight: root.weight
    }
    Item {
        id: capsPlace

        // Long sequences leave the title its share.
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(caps.implicitWidth, Math.round(parent.width * 0.65))
        height: 21
        clip: caps.implicitWidth > width

        KeyCaps {
            id: caps
            keys: root.keys // qmllint disable type
            compact: true
        }
    }
}
