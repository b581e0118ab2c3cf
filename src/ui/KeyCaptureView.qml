// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The field that takes a combination of keys from the keyboard.
KeyCaptureItem {
    id: root

    // Says nothing itself: what is inside says it.
    property bool isBlank: false
    // Has the height of a line of text, and says all in that line.
    property bool isNarrow: false
    property color tint: Theme.accent
    readonly property color outline: Qt.rgba(root.tint.r, root.tint.g, root.tint.b, Theme.highContrast ? 1 : 0.55)
    readonly property string request: root.capturing ? (Localized.czech ? "Stiskněte zkratku…" : "Press the shortcut…")
                                                     : (Localized.czech ? "Klikněte sem a stiskněte zkratku" : "Click here and press the shortcut")
    readonly property real cornerRadius: root.isNarrow ? 10 : 16
    readonly property string wayOut: Localized.czech ? "Esc dvakrát ukončí snímání" : "Esc twice lets go of the keyboard"

    implicitWidth: 380
    implicitHeight: 92
    Accessible.role: Accessible.HotkeyField
    Accessible.name: root.request
    Accessible.description: root.capturing ? root.wayOut : ""
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    Accessible.onPressAction: root.forceActiveFocus(Qt.OtherFocusReason)

    DashedOutline {
        anchors.fill: parent
        visible: !root.capturing
        radius: root.cornerRadius
        lineWidth: 2
        color: root.outline
    }
    RoundedRectangle {
        anchors.fill: parent
        visible: root.capturing
        radius: root.cornerRadius
        color: Qt.rgba(root.tint.r, root.tint.g, root.tint.b, Theme.softAccent.a)
        borderWidth: 2
        borderColor: root.tint
    }
    Grid {
        visible: !root.isBlank
        anchors.centerIn: parent
        columns: root.isNarrow ? 2 : 1
        spacing: root.isNarrow ? 10 : 6
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        PlainLabel {
            width: Math.min(implicitWidth, root.width - 32)
            text: root.request
            size: root.isNarrow ? 12.5 : 13.5
            color: root.capturing ? Theme.ink : Theme.secondaryInk
            Accessible.ignored: true
        }
        PlainLabel {
            visible: root.capturing
            width: Math.min(implicitWidth, root.width - 32)
            text: root.wayOut
            size: 11
            color: Theme.secondaryInk
            Accessible.ignored: true
        }
    }
    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onPressedChanged: {
            if (pressed)
                root.forceActiveFocus(Qt.MouseFocusReason);
        }
    }
}
