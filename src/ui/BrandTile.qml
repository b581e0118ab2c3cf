// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Window

// The program's own sign.
Item {
    id: root

    property real size: 32

    // The image alone would take the place of as many pixels as it has, which are more where screens are dense.
    implicitWidth: root.size
    implicitHeight: root.size

    Image {
        readonly property int pixels: Math.round(root.size * Screen.devicePixelRatio)

        anchors.fill: parent
        sourceSize.width: pixels
        sourceSize.height: pixels
        source: "qrc:/keyvora/app.keyvora.Keyvora.svg"
    }
}
