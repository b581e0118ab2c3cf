// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Says what the program is and which version.
Window {
    id: root

    signal quitRequested

    width: 280
    height: 190
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    title: Localized.czech ? "O aplikaci Keyvora" : "About Keyvora"
    color: Theme.base

    Column {
        anchors.centerIn: parent
        spacing: 8

        BrandTile {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 64
        }
        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Keyvora"
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        PlainLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: (Localized.czech ? "Verze " : "Version ") + Qt.application.version
            size: 12
            color: Theme.secondaryInk
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: root.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.quitRequested()
    }
}
