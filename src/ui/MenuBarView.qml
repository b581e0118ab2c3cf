// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The panel of the tray icon.
FocusScope {
    id: root

    required property PanelController controller

    width: 330
    height: column.implicitHeight + 24
    focus: true
    Keys.onEscapePressed: root.controller.dismiss()

    Rectangle {
        anchors.fill: parent
        color: Theme.base
        border.width: Theme.hairlineWidth
        border.color: Theme.hairline
    }
    Column {
        id: column
        x: 12
        y: 12
        width: parent.width - 24
        spacing: 10

        Row {
            spacing: 10

            BrandTile {}
            PlainLabel {
                height: 32
                text: "Keyvora"
                size: 13
                font.weight: Theme.strongWeight
            }
        }
        Rectangle {
            width: parent.width
            height: Theme.hairlineWidth
            color: Theme.hairline
        }
        Item {
            width: parent.width
            height: 32

            ProminentButton {
                focus: true
                symbol: "grid_view"
                text: Localized.czech ? "Otevřít knihovnu" : "Open Library"
                onClicked: root.controller.openLibrary()
            }
            GlassButton {
                anchors.right: parent.right
                text: Localized.czech ? "Ukončit" : "Quit"
                onClicked: root.controller.quit()
            }
        }
    }
}
