// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A rounded surface with a soft shadow that deepens when it is raised.
Item {
    id: root

    property bool raised: false
    property real cornerRadius: 16

    CardShadow {
        anchors.fill: parent
        cornerRadius: root.cornerRadius
        blur: root.raised ? 8 : 4
        offset: root.raised ? 3 : 2
        percent: root.raised ? 10 : 5
    }
    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
