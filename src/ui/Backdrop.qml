// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The base colour under two soft glows.
Rectangle {
    id: root

    color: Theme.base
    clip: true

    // Of each only what the window shows; pixels beyond it would be drawn for nobody.
    Glow {
        width: 530
        height: 310
        color: Theme.firstGlow
        radius: 280
        middle: Qt.point(250, 30)
    }
    Glow {
        x: root.width - width
        y: root.height - height
        width: 380
        height: 330
        color: Theme.secondGlow
        radius: 320
        middle: Qt.point(320, 320)
    }
}
