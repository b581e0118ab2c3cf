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

    readonly property real leastNameWidth: 72
    readonly property real leastSearchWidth: 112
    // What the title and the import leave for the name of the application and the search.
    readonly property real room: root.width - pageTitle.implicitWidth - pageTitle.anchors.rightMargin - importMenu.width - 2 * controls.spacing - 23

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

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "web_asset"
                color: Theme.secondaryInk
            }
            PlainLabel {
                id: appName
                width: Math.min(implicitWidth, 150, Math.max(root.leastNameWidth, root.room - search.width))
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
            // Gives way to the title, and to an ordinary name.
            width: Math.max(root.leastSearchWidth, Math.min(implicitWidth, root.room - Math.min(appName.implicitWidth, root.leastNameWidth)))
            focus: true
            appModel: root.appModel
            Keys.onDownPressed: root.leftDownwards()
        }
    }
}
