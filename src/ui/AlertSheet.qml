// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// Says that something did not work, and why.
AppSheet {
    id: root

    property string description: ""

    implicitWidth: 380

    body: ColumnLayout {
        spacing: 10

        PlainLabel {
            Layout.fillWidth: true
            text: root.title
            size: 15
            font.weight: Theme.strongWeight
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        PlainLabel {
            Layout.fillWidth: true
            text: root.description
            size: 12.5
            color: Theme.secondaryInk
            wrapMode: Text.Wrap
            maximumLineCount: 8
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        ProminentButton {
            Layout.alignment: Qt.AlignRight
            Layout.topMargin: 6
            focus: true
            label: "OK"
            onClicked: root.close()
        }
    }
}
