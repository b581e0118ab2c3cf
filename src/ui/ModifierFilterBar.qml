// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Narrows the shown shortcuts to those that use certain modifier keys.
Row {
    id: root

    required property AppModel appModel

    function focusFirst(): void {
        first.forceActiveFocus(Qt.TabFocusReason);
    }

    height: 30
    spacing: 8

    PlainLabel {
        height: parent.height
        rightPadding: 4
        text: Localized.czech ? "Obsahuje" : "Contains"
        size: 12
        color: Theme.secondaryInk
    }
    ModifierPill {
        id: first
        token: "⌘"
        appModel: root.appModel
    }
    ModifierPill {
        token: "⌥"
        appModel: root.appModel
    }
    ModifierPill {
        token: "⇧"
        appModel: root.appModel
    }
    ModifierPill {
        token: "⌃"
        appModel: root.appModel
    }
    ModifierPill {
        token: "Fn"
        appModel: root.appModel
    }
    GlassButton {
        id: clear
        anchors.verticalCenter: parent.verticalCenter
        visible: root.appModel.modifierTokens.length > 0
        label: Localized.czech ? "Zrušit filtry" : "Clear Filters"
        onClicked: {
            // What is hidden would keep the keyboard.
            if (clear.activeFocus)
                root.focusFirst();
            root.appModel.clearModifiers();
        }
    }
}
