// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A titled group of settings.
RoundedRectangle {
    id: root

    property string title: ""
    default property alias content: column.data

    implicitHeight: column.implicitHeight + 26
    radius: 12
    color: Theme.card
    borderWidth: Theme.hairlineWidth
    borderColor: Theme.hairline

    Column {
        id: column
        x: 14
        y: 13
        width: root.width - 28
        spacing: 10

        PlainLabel {
            text: root.title
            size: 12.5
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
}
