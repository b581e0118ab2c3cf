// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Says that nothing matches, and what to do about it. Screen readers tell it when it comes.
Column {
    id: root

    spacing: 8
    Accessible.role: Accessible.AlertMessage
    Accessible.name: heading.text
    Accessible.description: advice.text

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "keyboard"
        size: 44
        color: Theme.secondaryInk
    }
    PlainLabel {
        id: heading
        anchors.horizontalCenter: parent.horizontalCenter
        text: Localized.czech ? "Žádná odpovídající zkratka" : "No matching shortcut"
        size: 16
        font.weight: Theme.strongWeight
    }
    PlainLabel {
        id: advice
        anchors.horizontalCenter: parent.horizontalCenter
        text: Localized.czech ? "Zrušte některý filtr nebo změňte hledání." : "Clear a filter or change your search."
        color: Theme.secondaryInk
    }
}
