// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A cheat sheet as it will be on paper, as large as the place allows.
RoundedRectangle {
    id: root

    // The format, by its position in the order of display.
    required property int format
    required property string formatName

    readonly property int margin: 9

    radius: 12
    color: Theme.desk
    Accessible.role: Accessible.Graphic
    Accessible.name: (Localized.czech ? "Náhled: " : "Preview: ") + root.formatName

    CardShadow {
        anchors.fill: page
        cornerRadius: 2
        blur: 8
        offset: 3
        percent: 10
    }
    SheetPreview {
        id: page

        readonly property real factor: Math.min(1.25, (root.height - 2 * root.margin) / implicitHeight, (root.width - 2 * root.margin) / implicitWidth)

        // Whole numbers, or the edges blur.
        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        width: Math.round(implicitWidth * factor)
        height: Math.round(implicitHeight * factor)
        format: root.format
    }
}
