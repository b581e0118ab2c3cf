// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Says what was deleted, and brings it back.
RoundedRectangle {
    id: root

    required property string title

    readonly property string message: Localized.czech ? "Zkratka „" + root.title + "“ byla smazána." : "“" + root.title + "” was deleted."

    readonly property bool hadFocus: undoButton.activeFocus

    signal undone
    // The keyboard goes backwards.
    signal leftUpwards

    function focusButton(): void {
        undoButton.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: 46
    radius: 12
    color: Theme.floating
    borderWidth: Theme.hairlineWidth
    borderColor: Theme.hairline
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.message

    PlainLabel {
        x: 14
        width: undoButton.x - 24
        height: parent.height
        text: root.message
        size: 12
        Accessible.ignored: true
    }
    GlassButton {
        id: undoButton
        anchors.right: parent.right
        anchors.rightMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        symbol: "undo"
        label: Localized.czech ? "Vrátit zpět" : "Undo"
        onClicked: root.undone()
        Keys.onBacktabPressed: root.leftUpwards()
    }
}
