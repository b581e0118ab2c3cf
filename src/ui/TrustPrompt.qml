// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// Asks whether the program may read the menus of other applications, and says what that means.
AppSheet {
    id: root

    required property TrustController controller

    title: Localized.czech ? "Smí Keyvora číst menu jiných aplikací?" : "May Keyvora read other apps’ menus?"
    implicitWidth: 460
    onAboutToHide: root.controller.decline()

    component Reason: PlainLabel {
        Layout.fillWidth: true
        size: 12.5
        lineHeight: 1.1
        color: Theme.secondaryInk
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    body: ColumnLayout {
        spacing: 12

        Symbol {
            // Its drawing has a border of its own.
            Layout.leftMargin: -6
            name: "settings_accessibility"
            size: 34
            color: Theme.accent
        }
        PlainLabel {
            Layout.fillWidth: true
            text: root.title
            size: 17
            font.weight: Theme.strongWeight
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Reason {
            text: Localized.czech ? "Keyvora z\u00a0menu přečte názvy příkazů a\u00a0jejich klávesové zkratky. Co píšete, nečte nikdy."
                                  : "Keyvora reads the titles of menu commands and their shortcuts. It never reads what you type."
        }
        Reason {
            text: Localized.czech ? "Povolením zapnete podporu zpřístupnění v\u00a0tomto prostředí, a\u00a0to i\u00a0pro další přihlášení."
                                  : "Allowing this turns on your desktop’s accessibility support, for this session and later ones."
        }
        Reason {
            text: Localized.czech ? "Spuštěné aplikace Qt a\u00a0KDE je pak potřeba spustit znovu. Návrhy zkratek a\u00a0přehled při podržení kláves začnou fungovat od příštího spuštění aplikace Keyvora."
                                  : "Qt and KDE apps that are already running have to be restarted. Suggestions and the overlay begin the next time Keyvora starts."
        }
        RowLayout {
            Layout.topMargin: 6
            spacing: 8

            Item {
                Layout.fillWidth: true
            }
            GlassButton {
                label: Localized.czech ? "Teď ne" : "Not Now"
                onClicked: root.close()
            }
            ProminentButton {
                focus: true
                label: Localized.czech ? "Povolit" : "Allow"
                onClicked: {
                    root.controller.allow();
                    root.close();
                }
            }
        }
    }
}
