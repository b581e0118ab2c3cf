// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Brings in the shortcuts that other applications show in their menus.
GlassButton {
    id: root

    required property AppModel appModel

    symbol: "download"
    trailingSymbol: "keyboard_arrow_down"
    text: Localized.czech ? "Import z menu" : "Import from Menu"
    Accessible.name: root.text
    onClicked: menu.opened ? menu.close() : menu.open()

    AppMenuPopup {
        id: menu

        y: root.height + 4

        AppMenuItem {
            text: Localized.czech ? "Import z aktivní aplikace „" + root.appModel.activeApp + "“"
                                  : "Import from Active App “" + root.appModel.activeApp + "”"
            enabled: false
        }
        AppMenuItem {
            text: Localized.czech ? "Import ze všech spuštěných aplikací" : "Import from All Running Apps"
            enabled: false
        }
    }
}
