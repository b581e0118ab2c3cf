// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Window

// The program's own sign.
Image {
    id: root

    property real size: 32
    readonly property int pixels: Math.round(root.size * Screen.devicePixelRatio)

    width: root.size
    height: root.size
    sourceSize.width: root.pixels
    sourceSize.height: root.pixels
    source: "qrc:/keyvora/app.keyvora.Keyvora.svg"
}
