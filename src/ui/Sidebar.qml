// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The sections of the program. Arrow keys move the selection.
FocusScope {
    id: root

    required property SidebarModel sections

    signal addRequested
    signal settingsRequested

    implicitWidth: ground.implicitWidth

    SidebarGround {
        id: ground
        anchors.fill: parent

        PlainLabel {
            text: "Keyvora"
            size: 15
            font.weight: Theme.strongWeight
        }
        PlainLabel {
            text: Localized.czech ? "Ovládni svůj Mac" : "Master your Mac"
            size: 11
            color: Theme.secondaryInk
        }
    }
    ListView {
        id: list

        anchors.top: parent.top
        anchors.topMargin: ground.headHeight
        anchors.bottom: actions.top
        anchors.bottomMargin: 8
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 13
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        cacheBuffer: 1000
        model: root.sections
        currentIndex: root.sections.currentRow
        section.property: "heading"
        Accessible.role: Accessible.List
        Accessible.name: Localized.czech ? "Sekce" : "Sections"

        // The model decides what is current; the view follows.
        Keys.onUpPressed: root.sections.select(root.sections.currentRow - 1)
        Keys.onDownPressed: root.sections.select(root.sections.currentRow + 1)
        Keys.onPressed: event => {
            if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
                return;
            root.sections.select(event.key === Qt.Key_Home ? 0 : list.count - 1);
            event.accepted = true;
        }

        section.delegate: PlainLabel {
            required property string section

            x: 8
            height: 26
            topPadding: 6
            text: section
            size: 10
            color: Theme.tertiaryInk
            font.weight: Theme.strongWeight
            font.letterSpacing: 0.6
            Accessible.role: Accessible.Heading
            Accessible.name: section
        }
        // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
        // qmllint disable unqualified
        delegate: SidebarRow {
            required property int index
            required property string title

            width: ListView.view.width
            label: title
            selected: root.sections.currentRow === index
            Accessible.name: title
            Accessible.focusable: true
            Accessible.selectable: true
            Accessible.selected: selected
            onClicked: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                root.sections.select(index);
            }
        }
        // qmllint enable unqualified
    }

    Column {
        id: actions

        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        anchors.left: list.left
        anchors.right: list.right

        SidebarRow {
            width: parent.width
            focusPolicy: Qt.StrongFocus
            symbol: "add_circle"
            label: Localized.czech ? "Přidat vlastní" : "Add Custom"
            onClicked: root.addRequested()
        }
        SidebarRow {
            width: parent.width
            focusPolicy: Qt.StrongFocus
            symbol: "settings"
            label: Localized.czech ? "Nastavení" : "Settings"
            onClicked: root.settingsRequested()
        }
    }
}
