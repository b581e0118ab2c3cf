// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The settings sheet.
AppSheet {
    id: root

    required property Settings settings
    required property CustomShortcuts customs

    title: Localized.czech ? "Nastavení" : "Settings"
    implicitWidth: 520
    padding: 0
    closePolicy: AppSheet.CloseOnEscape | AppSheet.CloseOnPressOutside
    Component.onCompleted: root.settings.begin()

    contentItem: SettingsPage {
        focus: true
        title: root.title
        settings: root.settings
        customs: root.customs
        onClosed: root.close()
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
    }

    Connections {
        target: root.settings

        function onFailed(description: string): void {
            alert.description = Qt.binding(() => description.length > 0 ? description : Localized.czech ? "Neznámá chyba" : "Unknown error");
            alert.open();
        }
    }
    AlertSheet {
        id: alert
        title: Localized.czech ? "Nastavení se nepodařilo změnit" : "Couldn't change the setting"
        onQuitRequested: root.quitRequested()
    }
}
