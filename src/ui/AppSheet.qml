// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A sheet over the dimmed window, as wide as it wants to be where the window allows it. Escape closes it.
T.Popup {
    id: root

    property string title: ""
    // What it shows.
    property Item body: null
    // Below which the body scrolls.
    property real leastBodyHeight: root.body?.implicitHeight ?? 0

    signal quitRequested

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    padding: 26
    closePolicy: T.Popup.CloseOnEscape
    // Its own size, but never larger than the window.
    width: Math.min(implicitWidth, (parent?.width ?? 800) - 24)
    height: Math.min(implicitContentHeight + topPadding + bottomPadding, (parent?.height ?? 600) - 48)

    contentItem: SheetBody {
        body: root.body
        leastHeight: root.leastBodyHeight
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
    }

    T.Overlay.modal: Rectangle {
        color: Theme.dark ? Qt.rgba(0, 0, 0, 0.5) : Qt.rgba(0, 0, 0, 0.27)
    }
    background: Item {
        // An open sheet keeps the keys of the menu from the window.
        Shortcut {
            sequence: "Ctrl+Q"
            enabled: root.visible
            onActivated: root.quitRequested()
        }
        CardShadow {
            anchors.fill: parent
            cornerRadius: 18
            blur: 60
            offset: 14
            percent: 28
        }
        RoundedRectangle {
            anchors.fill: parent
            radius: 18
            color: Theme.sheet
            borderWidth: Theme.hairlineWidth
            borderColor: Theme.hairline
        }
    }
}
