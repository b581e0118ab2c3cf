// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The shortcuts of the selected section that pass the filters.
FocusScope {
    id: root

    required property AppModel appModel

    // Moves the keyboard into the cards.
    function focusCards(): void {
        if (grid.count > 0)
            grid.forceActiveFocus(Qt.TabFocusReason);
    }

    ModifierFilterBar {
        id: filterBar
        x: 22
        appModel: root.appModel
    }
    Row {
        id: message

        anchors.top: filterBar.bottom
        anchors.topMargin: 12
        x: 22
        spacing: 8
        visible: root.appModel.importMessage.length > 0
        height: visible ? 20 : 0
        Accessible.role: Accessible.StaticText
        Accessible.name: root.appModel.importMessage

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "check_circle-fill"
            color: Theme.right
        }
        PlainLabel {
            width: Math.min(implicitWidth, root.width - 68)
            height: parent.height
            text: root.appModel.importMessage
            size: 12
        }
    }
    ShortcutGrid {
        id: grid
        anchors.top: message.visible ? message.bottom : filterBar.bottom
        anchors.topMargin: 14
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        appModel: root.appModel
        model: root.appModel.filteredModel
    }
    EmptyState {
        anchors.centerIn: grid
        visible: grid.count === 0
    }
}
