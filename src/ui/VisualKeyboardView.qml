// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A keyboard to point at: which keys are in use, and for what.
ScrollPage {
    id: root

    required property AppModel appModel
    required property VisualKeyboard keyboard

    readonly property bool hasChoice: root.keyboard.selectedKey.length > 0

    spacing: 12

    Paragraph {
        Accessible.role: Accessible.Heading
        text: Localized.czech ? "Klikni na klávesu a objev všechny zkratky, které ji používají." : "Click a key to discover every shortcut that uses it."
    }
    ModifierFilterBar {
        appModel: root.appModel
    }
    DrawnKeyboard {
        width: parent.width
        focus: true
        keyboard: root.keyboard
        isMarking: root.appModel.modifierTokens.length > 0
    }
    Item {
        width: parent.width
        height: 4 + Math.max(Theme.cardHeight, matches.height)
        visible: root.hasChoice

        CardFlow {
            id: matches
            y: 4
            visible: matches.count > 0
            width: parent.width
            appModel: root.appModel
            shortcuts: root.keyboard.matches
        }
        EmptyState {
            anchors.centerIn: parent
            visible: root.keyboard.matchCount === 0
        }
    }
    GlassButton {
        visible: root.hasChoice
        label: Localized.czech ? "Otevřít celou knihovnu" : "Open Full Library"
        symbol: "grid_view"
        onClicked: root.keyboard.openLibrary()
    }
}
