// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// Says that nothing matches, and what to do about it.
ColumnLayout {
    id: root

    spacing: 8
    Accessible.role: Accessible.StaticText
    Accessible.name: heading.text
    Accessible.description: advice.text

    Symbol {
        Layout.alignment: Qt.AlignHCenter
        name: "keyboard_off"
        size: 44
        color: Theme.secondaryInk
    }
    PlainLabel {
        id: heading
        Layout.alignment: Qt.AlignHCenter
        text: Localized.czech ? "Žádná odpovídající zkratka" : "No matching shortcut"
        size: 16
        font.weight: Theme.strongWeight
    }
    PlainLabel {
        id: advice
        Layout.alignment: Qt.AlignHCenter
        text: Localized.czech ? "Zrušte některý filtr nebo změňte hledání." : "Clear a filter or change your search."
        color: Theme.secondaryInk
    }
}
