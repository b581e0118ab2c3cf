// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Window

// One of the program's symbols, in the colour of the text beside it.
Image {
    id: root

    required property string name
    property color color: Theme.ink
    property real size: 16
    readonly property int pixels: Math.round(root.size * Screen.devicePixelRatio)

    width: root.size
    height: root.size
    sourceSize.width: root.pixels
    sourceSize.height: root.pixels
    // By its parts: Qt 6.4 reads freed memory when compiled code turns a colour into text.
    source: root.name.length > 0 ? "image://symbol/" + root.name + "/" + root.color.r + "/" + root.color.g + "/" + root.color.b + "/" + root.color.a : ""
}
