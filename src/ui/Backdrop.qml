// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// The base colour under two soft glows.
Rectangle {
    id: root

    readonly property color firstGlow: Theme.firstGlow
    readonly property color secondGlow: Theme.secondGlow

    color: Theme.base
    clip: true

    Image {
        readonly property real radius: 280

        x: 250 - radius
        y: 30 - radius
        width: 2 * radius
        height: 2 * radius
        // Both are large, and only this window has them.
        cache: false
        source: "image://glow/" + root.firstGlow.r + "/" + root.firstGlow.g + "/" + root.firstGlow.b + "/" + root.firstGlow.a
    }

    Image {
        readonly property real radius: 320

        x: root.width - 60 - radius
        y: root.height - 10 - radius
        width: 2 * radius
        height: 2 * radius
        cache: false
        source: "image://glow/" + root.secondGlow.r + "/" + root.secondGlow.g + "/" + root.secondGlow.b + "/" + root.secondGlow.a
    }
}
