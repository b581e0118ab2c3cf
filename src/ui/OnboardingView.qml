// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// Greets a new user, once.
AppSheet {
    id: root

    title: Localized.czech ? "Vítej v appce Keyvora" : "Welcome to Keyvora"
    implicitWidth: 460

    body: ColumnLayout {
        spacing: 14

        BrandTile {
            size: 46
        }
        ColumnLayout {
            Layout.topMargin: 2
            spacing: 2

            PlainLabel {
                Layout.fillWidth: true
                text: root.title
                size: 22
                font.weight: 700
                font.letterSpacing: -0.3
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            PlainLabel {
                Layout.fillWidth: true
                text: Localized.czech ? "Pár věcí, co stojí za to hned vědět." : "A few things worth knowing right away."
                size: 13
                color: Theme.secondaryInk
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        OnboardingRow {
            symbol: "search"
            title: Localized.czech ? "Prohledej celou knihovnu" : "Search the whole library"
            detail: Localized.czech ? "Stovky zkratek podle kategorií, oblíbené a filtr podle modifikátoru."
                                    : "Hundreds of shortcuts by category, favorites, and modifier filters."
        }
        OnboardingRow {
            symbol: "keyboard"
            title: Localized.czech ? "⌃⌥Mezerník odkudkoli" : "⌃⌥Space from anywhere"
            detail: Localized.czech ? "Otevře celou knihovnu, ať jsi v jakékoli aplikaci."
                                    : "Opens the full library no matter what app you're in."
        }
        OnboardingRow {
            symbol: "touch_app"
            title: Localized.czech ? "Podrž ⌃⌥ pro bleskový přehled" : "Hold ⌃⌥ for a quick peek"
            detail: Localized.czech ? "Krátké podržení ukáže tipy pro právě aktivní aplikaci a zase zmizí."
                                    : "A short hold shows tips for the active app, then disappears."
        }
        OnboardingRow {
            symbol: "psychology"
            title: Localized.czech ? "Procvičuj a uč se" : "Practice and learn"
            detail: Localized.czech ? "Appka si pamatuje, co ti nejde, a víc to procvičuje."
                                    : "The app remembers what trips you up and drills it more."
        }
        OnboardingRow {
            symbol: "add_box"
            title: Localized.czech ? "Přizpůsob si to" : "Make it yours"
            detail: Localized.czech ? "Přidej vlastní zkratky nebo je naimportuj z menu jiných aplikací."
                                    : "Add your own shortcuts or import them from other apps' menus."
        }
        ProminentButton {
            Layout.fillWidth: true
            Layout.topMargin: 4
            focus: true
            label: Localized.czech ? "Začít" : "Get Started"
            onClicked: root.close()
        }
    }
}
