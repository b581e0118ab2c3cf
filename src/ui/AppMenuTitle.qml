// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A menu's place in the menu bar. Pressing it opens the menu; while one is open, pointing is enough.
T.MenuItem {
    id: root

    required property T.Menu dropDown

    property bool isBarActive: false

    // The person wants this menu open.
    signal requested

    function openMenu(): void {
        root.dropDown.popup(root, 0, root.height);
    }

    implicitWidth: implicitContentWidth + 18
    implicitHeight: 24
    focusPolicy: Qt.NoFocus
    text: root.dropDown.title
    Accessible.name: root.text
    Accessible.onPressAction: root.requested()
    onPressed: root.dropDown.visible ? root.dropDown.close() : root.requested()
    onHoveredChanged: {
        if (root.hovered && root.isBarActive && !root.dropDown.visible)
            root.requested();
    }

    contentItem: PlainLabel {
        text: root.text
        size: 12
        horizontalAlignment: Text.AlignHCenter
    }
    background: RoundedRectangle {
        radius: 6
        color: root.hovered || root.dropDown.visible ? Theme.softAccent : "transparent"
    }
}
