// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// The settings sheet.
AppSheet {
    id: root

    title: Localized.czech ? "Nastavení" : "Settings"
    width: 520
    padding: 18

    contentItem: ColumnLayout {
        spacing: 12

        PlainLabel {
            text: root.title
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        SettingsSection {
            Layout.fillWidth: true
            title: Localized.czech ? "Jazyk" : "Language"

            LanguageControl {
                focus: true
            }
        }
    }
}
