// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The shortcuts of the selected section that pass the filters.
FocusScope {
    id: root

    required property AppModel appModel

    // Brings a shortcut into view and moves the keyboard to it, unless something lies over the cards.
    function reveal(shortcutId: string, takesFocus: bool): void {
        grid.reveal(shortcutId);
        if (!takesFocus)
            return;
        Theme.showsFocus = true;
        root.focusCards();
    }

    readonly property alias contentY: grid.contentY
    readonly property alias currentRow: grid.currentIndex

    // Goes to where another library was.
    function resume(contentY: real, row: int): void {
        grid.resume(contentY, row);
    }

    // Moves the keyboard into the cards, or where there are none to what may be in their way.
    function focusCards(): void {
        if (grid.count > 0)
            grid.forceActiveFocus(Qt.TabFocusReason);
        else
            filterBar.focusFirst();
    }

    ModifierFilterBar {
        id: filterBar
        x: 22
        appModel: root.appModel
    }
    MessageLine {
        id: message
        anchors.top: filterBar.bottom
        anchors.topMargin: 12
        x: 22
        width: parent.width - 44
        text: root.appModel.importMessage
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
