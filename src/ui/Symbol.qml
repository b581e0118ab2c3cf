// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Window

// One of the program's symbols, in the colour of the text beside it.
Item {
    id: root

    required property string name
    property color color: Theme.ink
    property real size: 16

    // The image alone would take the place of as many pixels as it has, which are more where screens are dense.
    implicitWidth: root.size
    implicitHeight: root.size

    Image {
        readonly property int pixels: Math.round(root.size * Screen.devicePixelRatio)

        anchors.fill: parent
        sourceSize.width: pixels
        sourceSize.height: pixels
        // By its parts: Qt 6.4 reads freed memory when compiled code turns a colour into text.
        source: root.name.length > 0 ? "image://symbol/" + root.name + "/" + root.color.r + "/" + root.color.g + "/" + root.color.b + "/" + root.color.a : ""
    }
}
