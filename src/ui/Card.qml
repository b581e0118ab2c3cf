// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A rounded surface with a soft shadow that deepens as it is raised.
Item {
    id: root

    // From 0, at rest, to 1. The shadow goes there in few steps, because each is a picture.
    property real elevation: 0
    property real cornerRadius: 16

    CardShadow {
        anchors.fill: parent
        cornerRadius: root.cornerRadius
        blur: Math.round(4 + 4 * root.elevation)
        offset: Math.round(2 + root.elevation)
        percent: Math.round(5 + 5 * root.elevation)
    }
    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
