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
        visible: !root.raised
        anchors.fill: parent
        cornerRadius: root.cornerRadius
        blur: 4
        offset: 2
        percent: 5
    }
    CardShadow {
        visible: root.raised
        anchors.fill: parent
        cornerRadius: root.cornerRadius
        blur: 8
        offset: 3
        percent: 10
    }
    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
