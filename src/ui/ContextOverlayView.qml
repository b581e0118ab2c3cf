// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// The best shortcuts of the application that the person works in. Measured without positioners, which lay out only what
// is on the screen: the window needs its height before it is shown.
FloatingCard {
    id: root

    required property AppModel appModel
    required property OverlayController controller

    readonly property int spacing: 14
    readonly property int padding: 18

    width: 380
    height: openButton.y + openButton.height + root.padding
    Accessible.role: Accessible.Pane
    Accessible.name: Localized.czech ? "Rychlý přehled zkratek" : "Shortcut overlay"

    Item {
        id: header

        x: root.padding
        y: root.padding
        width: parent.width - 2 * root.padding
        height: Math.max(symbol.height, appName.height + caption.height)

        Symbol {
            id: symbol
            anchors.verticalCenter: parent.verticalCenter
            name: "web_asset"
            size: 24
        }
        PlainLabel {
            id: appName
            x: 34
            width: closeButton.x - x - 4
            text: root.appModel.activeApp
            size: 14
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        PlainLabel {
            id: caption
            x: appName.x
            anchors.top: appName.bottom
            width: appName.width
            text: Localized.czech ? "Nejlepší zkratky právě teď" : "Best shortcuts right now"
            size: 11
            color: Theme.secondaryInk
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        T.AbstractButton {
            id: closeButton

            // Larger to hit than to see.
            anchors.right: parent.right
            anchors.rightMargin: -5
            anchors.verticalCenter: parent.verticalCenter
            width: 28
            height: 28
            focusPolicy: Qt.NoFocus
            opacity: closeButton.down ? 0.7 : 1
            Accessible.name: Localized.czech ? "Zavřít" : "Close"
            Accessible.onPressAction: closeButton.clicked()
            onClicked: root.controller.toggle()

            contentItem: Item {
                Symbol {
                    anchors.centerIn: parent
                    name: "cancel-fill"
                    size: 18
                    color: closeButton.hovered ? Theme.ink : Theme.dark ? Theme.secondaryInk : Theme.tertiaryInk
                }
            }
        }
    }
    Item {
        id: list

        anchors.top: header.bottom
        anchors.topMargin: rows.count > 0 ? root.spacing : 0
        x: root.padding
        width: header.width
        height: rows.count > 0 ? rows.count * (rows.rowHeight + root.spacing) - root.spacing : 0
        Accessible.role: Accessible.List
        Accessible.name: Localized.czech ? "Zkratky" : "Shortcuts"

        Repeater {
            id: rows

            readonly property int rowHeight: 21

            model: root.appModel.contextualModel

            // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
            // qmllint disable unqualified
            delegate: ShortcutRow {
                required property int index

                y: index * (rows.rowHeight + root.spacing)
                width: list.width
                height: rows.rowHeight
            }
            // qmllint enable unqualified
        }
    }
    RoundedRectangle {
        id: divider

        anchors.top: list.bottom
        anchors.topMargin: root.spacing
        x: root.padding
        width: header.width
        height: Theme.hairlineWidth
        color: Theme.hairline
    }
    ProminentButton {
        id: openButton

        anchors.top: divider.bottom
        anchors.topMargin: root.spacing
        x: root.padding
        width: header.width
        focusPolicy: Qt.NoFocus
        label: Localized.czech ? "Otevřít celou knihovnu" : "Open Full Library"
        onClicked: root.controller.openLibrary()
    }
}
