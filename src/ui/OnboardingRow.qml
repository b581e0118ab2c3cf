// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts

// One thing worth knowing.
RowLayout {
    id: root

    required property string symbol
    required property string title
    required property string detail

    spacing: 12
    Accessible.role: Accessible.StaticText
    Accessible.name: root.title
    Accessible.description: root.detail

    Item {
        Layout.preferredWidth: 24
        Layout.fillHeight: true

        Symbol {
            y: 2
            name: root.symbol
            color: Theme.accent
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2

        PlainLabel {
            Layout.fillWidth: true
            text: root.title
            size: 13
            font.weight: Theme.strongWeight
        }
        PlainLabel {
            Layout.fillWidth: true
            text: root.detail
            size: 11.5
            color: Theme.secondaryInk
            wrapMode: Text.Wrap
        }
    }
}
