// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// The formats of the cheat sheet, one of which is chosen. One stop for Tab; arrow keys choose.
FocusScope {
    id: root

    required property CheatSheets sheets
    // The chosen format, by its position in the order of display.
    property int format: root.sheets.a4

    function choose(format: int): void {
        if (format >= 0 && format < root.sheets.sizeCount)
            root.format = format;
    }

    implicitHeight: cards.implicitHeight
    Keys.onLeftPressed: root.choose(root.format - 1)
    Keys.onRightPressed: root.choose(root.format + 1)

    RowLayout {
        id: cards
        anchors.fill: parent
        spacing: 12

        Repeater {
            model: root.sheets.sizeCount

            // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
            // qmllint disable unqualified
            delegate: SizeOptionCard {
                required property int index

                Layout.fillWidth: true
                Layout.fillHeight: true
                // All have the same share.
                Layout.preferredWidth: 1
                checked: root.format === index
                focus: checked
                activeFocusOnTab: checked
                text: root.sheets.label(index, Localized.czech)
                detail: root.sheets.detail(index, Localized.czech)
                symbol: root.sheets.isCard(index) ? "credit_card" : "description"
                onClicked: root.choose(index)
            }
            // qmllint enable unqualified
        }
    }
}
