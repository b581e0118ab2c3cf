// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The surface of a small window that floats over other programs. Its corners may be round where the desktop blends
// windows; elsewhere they would be black.
Item {
    id: root

    property bool isRounded: false
    property bool highlighted: false
    property color surface: Theme.floating
    property real roundness: 18
    readonly property real cornerRadius: root.isRounded ? root.roundness : 0

    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: root.surface
    }
    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        visible: root.highlighted
        color: Theme.hoverFill
    }
    // The outline lets some of what is below it through, so that it needs the surface there.
    RoundedRectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        color: "transparent"
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
