// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The sheet for a shortcut of the person's own.
AppSheet {
    id: root

    title: Localized.czech ? "Přidat vlastní zkratku" : "Add Custom Shortcut"
    width: 460

    contentItem: FocusScope {
        implicitHeight: 120

        PlainLabel {
            text: root.title
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        GlassButton {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            focus: true
            text: Localized.czech ? "Zrušit" : "Cancel"
            onClicked: root.close()
        }
    }
}
