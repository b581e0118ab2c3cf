// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The page's title, the application that the person came from, and the search.
FocusScope {
    id: root

    required property AppModel appModel
    required property SidebarModel sections

    function focusSearch(): void {
        search.forceActiveFocus(Qt.ShortcutFocusReason);
        search.selectAll();
    }

    signal leftDownwards

    implicitHeight: 32

    PlainLabel {
        id: pageTitle
        anchors.left: parent.left
        anchors.right: controls.left
        anchors.rightMargin: controls.spacing
        height: parent.height
        text: root.sections.pageTitle
        size: 24
        // Where the window is narrow, the longest titles do with less.
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: Theme.points(18)
        font.weight: 700
        font.letterSpacing: -0.4
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        id: controls
        anchors.right: parent.right
        spacing: 12

        Row {
            id: activeApp
            height: root.height
            spacing: 7
            Accessible.role: Accessible.StaticText
            Accessible.name: root.appModel.activeApp
            Accessible.description: Localized.czech ? "Aktivní aplikace" : "Active app"

            // What the title leaves.
            readonly property real room: root.width - pageTitle.implicitWidth - pageTitle.anchors.rightMargin - importMenu.width - search.width - 2 * controls.spacing - 23

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "web_asset"
                color: Theme.secondaryInk
            }
            PlainLabel {
                width: Math.min(implicitWidth, 150, Math.max(72, activeApp.room))
                height: parent.height
                text: root.appModel.activeApp
                size: 12.5
                color: Theme.secondaryInk
            }
        }
        ImportMenu {
            id: importMenu
            appModel: root.appModel
        }
        SearchField {
            id: search
            focus: true
            appModel: root.appModel
            Keys.onDownPressed: root.leftDownwards()
        }
    }
}
