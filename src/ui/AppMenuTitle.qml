// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A menu's place in the menu bar. Pressing it opens the menu; while one is open, pointing is enough.
T.MenuItem {
    id: root

    // An `AppMenuPopup`, made when it is first opened.
    required property Component dropDown

    property bool isBarActive: false
    readonly property bool isOpen: root.popup?.visible ?? false
    readonly property AppMenuPopup popup: loader.item as AppMenuPopup

    // The person wants this menu open.
    signal requested

    function openMenu(): void {
        loader.active = true;
        root.popup.popup(root, 0, root.height);
    }

    function closeMenu(): void {
        root.popup?.close();
    }

    implicitWidth: implicitContentWidth + 18
    implicitHeight: 24
    focusPolicy: Qt.NoFocus
    Accessible.name: root.text
    Accessible.onPressAction: root.requested()
    onPressed: root.isOpen ? root.closeMenu() : root.requested()
    onHoveredChanged: {
        if (root.hovered && root.isBarActive && !root.isOpen)
            root.requested();
    }

    Loader {
        id: loader
        active: false
        sourceComponent: root.dropDown
    }

    contentItem: PlainLabel {
        text: root.text
        size: 12
        horizontalAlignment: Text.AlignHCenter
    }
    background: RoundedRectangle {
        radius: 6
        color: root.hovered || root.isOpen ? Theme.softAccent : "transparent"
    }
}
