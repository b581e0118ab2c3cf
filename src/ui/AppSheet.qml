// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// A sheet over the dimmed window. Escape closes it.
T.Popup {
    id: root

    property string title: ""

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    padding: 26
    closePolicy: T.Popup.CloseOnEscape
    // Its own height, but never higher than the window.
    height: Math.min(implicitContentHeight + topPadding + bottomPadding, (parent?.height ?? 600) - 48)

    T.Overlay.modal: Rectangle {
        color: Theme.dark ? Qt.rgba(0, 0, 0, 0.5) : Qt.rgba(0, 0, 0, 0.27)
    }
    background: Item {
        Card {
            anchors.fill: parent
            cornerRadius: 18
            raised: true
        }
        Rectangle {
            anchors.fill: parent
            radius: 18
            color: Theme.sheet
            border.width: Theme.hairlineWidth
            border.color: Theme.hairline
            Accessible.role: Accessible.Dialog
            Accessible.name: root.title
        }
    }
}
