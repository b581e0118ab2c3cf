// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// One command of a menu, with its keys at the right.
T.MenuItem {
    id: root

    // Not `text`: see `PressButton`.
    required property string label
    // The keys as this keyboard has them, "Ctrl+Q".
    property string keysText: ""

    implicitWidth: implicitContentWidth
    implicitHeight: 26
    width: ListView.view ? ListView.view.width : implicitWidth
    hoverEnabled: true
    Accessible.name: root.label
    // Assistive technologies press what is off, too.
    Accessible.onPressAction: {
        if (root.enabled)
            root.triggered();
    }

    contentItem: Item {
        implicitWidth: (children[0] as PlainLabel).implicitWidth + (children[1] as PlainLabel).implicitWidth + (root.keysText.length > 0 ? 52 : 24)
        opacity: root.enabled ? 1 : 0.5

        PlainLabel {
            x: 12
            width: parent.width - 24
            height: parent.height
            text: root.label
            size: 12
            color: root.highlighted && root.enabled ? Theme.accentInk : Theme.ink
        }
        PlainLabel {
            anchors.right: parent.right
            anchors.rightMargin: 12
            height: parent.height
            text: root.keysText
            size: 11
            color: root.highlighted && root.enabled ? Theme.accentInk : Theme.secondaryInk
        }
    }
    background: RoundedRectangle {
        radius: 6
        color: root.highlighted && root.enabled ? Theme.accent : "transparent"
    }
}
