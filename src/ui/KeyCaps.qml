// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The keys of a shortcut in a row.
Row {
    id: root

    required property list<string> keys
    property bool compact: false

    spacing: root.compact ? 4 : 6

    Repeater {
        model: root.keys

        KeyCap {
            required property int index
            required property string modelData

            token: modelData
            isStep: Localized.isStepSeparator((parent as KeyCaps)?.keys ?? [], index)
            compact: (parent as KeyCaps)?.compact ?? false
        }
    }
}
