// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// A soft shadow for the rounded rectangle that it fills.
Item {
    id: root

    required property real cornerRadius
    required property int blur
    required property int offset // downwards
    required property int percent // opacity

    BorderImage {
        readonly property int reach: 2 * root.blur + root.cornerRadius

        x: -root.blur
        y: root.offset - root.blur
        width: root.width + 2 * root.blur
        height: root.height + 2 * root.blur
        source: "image://shadow/" + root.cornerRadius + "/" + root.blur + "/" + root.percent
        border.left: reach
        border.right: reach
        border.top: reach
        border.bottom: reach
    }
}
