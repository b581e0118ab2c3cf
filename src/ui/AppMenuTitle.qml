// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// A menu's place in the menu bar. Pressing it opens the menu; while one is open, pointing is enough.
T.AbstractButton {
    id: root

    required property T.Menu menu
    property bool isBarActive: false

    // The person wants this menu open.
    signal requested

    function openMenu(): void {
        root.menu.popup(root, 0, root.height);
    }

    implicitWidth: implicitContentWidth + 18
    implicitHeight: 24
    focusPolicy: Qt.NoFocus
    text: root.menu.title
    Accessible.role: Accessible.MenuItem
    Accessible.name: root.text
    Accessible.onPressAction: root.requested()
    onPressed: root.menu.visible ? root.menu.close() : root.requested()
    onHoveredChanged: {
        if (root.hovered && root.isBarActive && !root.menu.visible)
            root.requested();
    }

    contentItem: PlainLabel {
        text: root.text
        size: 12
        horizontalAlignment: Text.AlignHCenter
    }
    background: Rectangle {
        radius: 6
        color: root.hovered || root.menu.visible ? Theme.softAccent : "transparent"

        FocusRing {
            control: root
            gap: -1
        }
    }
}
