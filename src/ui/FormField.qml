// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// A field of a form under its label.
Column {
    id: root

    required property string label

    spacing: 6

    PlainLabel {
        width: parent.width
        text: root.label
        size: 12
        font.weight: Theme.strongWeight
        Accessible.ignored: true
    }
}
