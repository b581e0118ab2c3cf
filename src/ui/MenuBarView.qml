// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The panel of the tray icon. Measured without positioners, which lay out only what is on the screen: the window needs
// its height before it is shown.
FocusScope {
    id: root

    required property AppModel appModel
    required property PanelController controller
    property bool isRounded: false

    readonly property int spacing: 10
    readonly property int padding: 12

    function moveFocus(forward: bool): void {
        const next = root.Window.activeFocusItem.nextItemInFocusChain(forward);
        next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    width: 330
    height: libraryButton.y + libraryButton.height + root.padding
    focus: true
    Keys.onEscapePressed: root.controller.dismiss()
    Keys.onUpPressed: root.moveFocus(false)
    Keys.onDownPressed: root.moveFocus(true)

    Connections {
        target: root.controller

        function onPresented(): void {
            // It was the mouse that opened the panel.
            Theme.showsFocus = false;
            libraryButton.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    FloatingCard {
        anchors.fill: parent
        isRounded: root.isRounded
        surface: Theme.base
        roundness: 14
    }
    Item {
        id: header

        x: root.padding
        y: root.padding
        width: root.width - 2 * root.padding
        height: Math.max(tile.height, texts.height)

        BrandTile {
            id: tile
            anchors.verticalCenter: parent.verticalCenter
        }
        Item {
            id: texts

            anchors.verticalCenter: parent.verticalCenter
            x: tile.width + 10
            width: header.width - x
            height: appName.height + caption.height

            PlainLabel {
                id: appName
                width: parent.width
                text: "Keyvora"
                size: 13
                font.weight: Theme.strongWeight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            PlainLabel {
                id: caption
                anchors.top: appName.bottom
                width: parent.width
                text: (Localized.czech ? "Tipy pro " : "Tips for ") + root.appModel.activeApp
                size: 11
                color: Theme.secondaryInk
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    RoundedRectangle {
        id: upperDivider

        anchors.top: header.bottom
        anchors.topMargin: root.spacing
        x: root.padding
        width: header.width
        height: Theme.hairlineWidth
        color: Theme.hairline
    }
    Item {
        id: list

        anchors.top: upperDivider.bottom
        anchors.topMargin: rows.count > 0 ? root.spacing : 0
        x: root.padding
        width: header.width
        height: rows.count > 0 ? rows.count * (rows.rowHeight + root.spacing) - root.spacing : 0
        Accessible.role: Accessible.List
        Accessible.name: Localized.czech ? "Zkratky" : "Shortcuts"

        Repeater {
            id: rows

            readonly property int rowHeight: 31

            model: root.appModel.contextualModel

            // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
            // qmllint disable unqualified
            delegate: TipRow {
                required property int index

                y: index * (rows.rowHeight + root.spacing)
                width: list.width
                height: rows.rowHeight
            }
            // qmllint enable unqualified
        }
    }
    RoundedRectangle {
        id: lowerDivider

        anchors.top: list.bottom
        anchors.topMargin: root.spacing
        x: root.padding
        width: header.width
        height: Theme.hairlineWidth
        color: Theme.hairline
    }
    PlainButton {
        id: overlayButton

        // Its label is in line with the rest.
        anchors.top: lowerDivider.bottom
        anchors.topMargin: root.spacing - topPadding
        x: root.padding - leftPadding
        width: Math.min(implicitWidth, header.width + leftPadding + rightPadding)
        symbol: "web_asset"
        label: (Localized.czech ? "Zobrazit overlay pro " : "Show overlay for ") + root.appModel.activeApp
        weight: Theme.mediumWeight
        onClicked: root.controller.toggleOverlay()
    }
    PlainLabel {
        id: hint

        anchors.top: overlayButton.bottom
        anchors.topMargin: root.spacing - overlayButton.bottomPadding
        x: root.padding
        width: header.width
        text: Localized.czech ? "⌃ ⌥ mezerník otevře knihovnu odkudkoli" : "⌃ ⌥ Space opens the library from anywhere"
        size: 10.5
        color: Theme.secondaryInk
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    ProminentButton {
        id: libraryButton

        anchors.top: hint.bottom
        anchors.topMargin: root.spacing
        x: root.padding
        focus: true
        symbol: "grid_view"
        label: Localized.czech ? "Otevřít knihovnu" : "Open Library"
        weight: Theme.mediumWeight
        onClicked: root.controller.openLibrary()
    }
    PlainButton {
        anchors.right: header.right
        anchors.rightMargin: -rightPadding
        anchors.verticalCenter: libraryButton.verticalCenter
        label: Localized.czech ? "Ukončit" : "Quit"
        color: Theme.secondaryInk
        onClicked: root.controller.quit()
    }
}
