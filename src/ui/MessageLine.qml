// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// What came of something, or what to beware of, in a line, or two when it is long. Screen readers tell it when
// it comes.
Item {
    id: root

    required property string text
    property string symbol: "check_circle-fill"
    property color tint: Theme.right
    property color color: Theme.ink
    property alias maximumLineCount: label.maximumLineCount

    implicitHeight: Math.max(20, label.implicitHeight)
    visible: root.text.length > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.text

    Symbol {
        y: 2
        name: root.symbol
        color: root.tint
    }
    PlainLabel {
        id: label
        x: 24
        width: root.width - x
        height: parent.height
        text: root.text
        size: 12
        color: root.color
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
}
