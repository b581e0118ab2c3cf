// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A line to write into. Its name is that of the form's field.
T.TextField {
    id: root

    required property string name

    implicitHeight: 32
    leftPadding: 11
    rightPadding: 11
    placeholderTextColor: Theme.placeholderInk
    color: Theme.ink
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    font.pointSize: Theme.points(12.5)
    maximumLength: 200
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    Accessible.name: root.name

    background: RoundedRectangle {
        radius: 10
        color: Theme.capFill
        borderWidth: root.activeFocus ? Theme.strongLineWidth : Theme.hairlineWidth
        borderColor: root.activeFocus ? Theme.accent : Theme.hairline

        PlainLabel {
            x: root.leftPadding
            width: root.width - root.leftPadding - root.rightPadding
            height: parent.height
            visible: root.text.length === 0 && root.preeditText.length === 0
            text: root.placeholderText
            size: 12.5
            color: Theme.placeholderInk
        }
    }
}
