// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// One of the person's own shortcuts in the settings: its title and keys, what it collides with, and the way to
// delete it.
FocusScope {
    id: root

    required property string title
    required property list<string> keys
    // The shortcut that has the same keys; empty when none has.
    required property string conflictTitle

    readonly property string warning: Localized.czech ? "Koliduje s „" + root.conflictTitle + "“" : "Conflicts with “" + root.conflictTitle + "”"

    signal deleted

    implicitHeight: column.height + 10
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: Localized.spokenKeys(root.keys, Localized.czech) + (root.conflictTitle.length > 0 ? ". " + root.warning : "")

    PaneSlice {
        anchors.fill: parent
    }
    Column {
        id: column
        x: 14
        y: 5
        width: parent.width - remove.width - 32
        spacing: 3

        ShortcutRow {
            width: parent.width
            title: root.title
            keys: root.keys
            Accessible.ignored: true
        }
        WarningLine {
            width: parent.width
            text: root.conflictTitle.length > 0 ? root.warning : ""
            // The row says it, too, and rows come and go as the list is scrolled.
            Accessible.role: Accessible.StaticText
        }
    }
    SymbolButton {
        id: remove
        anchors.right: parent.right
        anchors.rightMargin: 8
        y: 2
        focus: true
        // Rows come into being in any order, and there may be thousands: the list says where the keyboard goes.
        focusPolicy: Qt.ClickFocus
        symbol: "delete"
        label: Localized.czech ? "Smazat „" + root.title + "“" : "Delete “" + root.title + "”"
        onClicked: root.deleted()
        Keys.onDeletePressed: event => remove.press(event)
    }
}
