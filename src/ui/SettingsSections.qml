// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The settings of a fixed number, and the heading of the person's own shortcuts, which follow below.
Column {
    id: root

    required property Settings settings
    required property bool hasCustoms

    // The keyboard goes on below.
    signal leftDownwards

    function focusLast(): void {
        importButton.forceActiveFocus(Qt.BacktabFocusReason);
    }

    spacing: 12

    SettingsSection {
        width: parent.width
        title: Localized.czech ? "Jazyk" : "Language"

        LanguageControl {
            focus: true
        }
    }
    SettingsSection {
        width: parent.width
        title: Localized.czech ? "Chování" : "Behavior"

        Column {
            width: parent.width
            spacing: 4

            SettingsSwitch {
                width: parent.width
                text: Localized.czech ? "Spouštět Keyvora po přihlášení" : "Launch Keyvora at login"
                isOn: root.settings.launchAtLogin
                onSwitched: on => root.settings.setLaunchAtLogin(on)
            }
            SettingsSwitch {
                width: parent.width
                text: Localized.czech ? "Chytré návrhy podle použitých položek menu" : "Smart suggestions from menu items you use"
                isOn: root.settings.smartSuggestions
                onSwitched: on => root.settings.setSmartSuggestions(on)
            }
            SettingsSwitch {
                width: parent.width
                text: Localized.czech ? "Učební režim – zobrazovat tip už při prvním použití myši" : "Learning mode – show a tip on first mouse use"
                isOn: root.settings.learningMode
                onSwitched: on => root.settings.setLearningMode(on)
            }
        }
    }
    SettingsSection {
        width: parent.width
        title: Localized.czech ? "Soukromí a oprávnění" : "Privacy & Permissions"

        Paragraph {
            text: Localized.czech ? "Chytré návrhy a podržení ⌃⌥ pro rychlý přehled zkratek potřebují oprávnění Zpřístupnění. Obsah dokumentů se nečte a žádná data neopouštějí Mac. Po povolení appku restartuj, ať se projeví."
                                  : "Smart suggestions and holding ⌃⌥ for a quick shortcut peek need Accessibility permission. Document content is never read and no data leaves your Mac. Restart the app after allowing it for the change to take effect."
            size: 12
            color: Theme.secondaryInk
        }
        GlassButton {
            label: Localized.czech ? "Povolit ve Zpřístupnění…" : "Allow in Accessibility…"
            onClicked: root.settings.requestTrust()
        }
        MessageLine {
            width: parent.width
            text: !root.settings.isAlreadyTrusted ? "" : Localized.czech ? "Oprávnění už je uděleno." : "Already allowed."
        }
    }
    SettingsSection {
        width: parent.width
        title: Localized.czech ? "Záloha a přenos" : "Backup & Transfer"

        Paragraph {
            text: Localized.czech ? "Automatická synchronizace mezi Macy zatím není k dispozici. Vlastní zkratky a oblíbené si můžeš přenést ručně přes soubor."
                                  : "Automatic sync between Macs isn't available yet. You can move your custom shortcuts and favorites manually via a file."
            size: 12
            color: Theme.secondaryInk
        }
        Row {
            spacing: 8

            GlassButton {
                label: Localized.czech ? "Exportovat zálohu…" : "Export Backup…"
                onClicked: root.settings.exportBackup(root.Window.window)
            }
            GlassButton {
                id: importButton
                label: Localized.czech ? "Importovat zálohu…" : "Import Backup…"
                onClicked: root.settings.importBackup(root.Window.window)
                Keys.onTabPressed: event => {
                    event.accepted = root.hasCustoms;
                    root.leftDownwards();
                }
            }
        }
        MessageLine {
            readonly property bool isFailure: root.settings.backupOutcome === Settings.BackupOutcome.ImportFailed

            width: parent.width
            symbol: isFailure ? "warning-fill" : "check_circle-fill"
            tint: isFailure ? Theme.warning : Theme.right
            text: {
                switch (root.settings.backupOutcome) {
                case Settings.BackupOutcome.Saved:
                    return Localized.czech ? "Záloha uložena." : "Backup saved.";
                case Settings.BackupOutcome.Imported:
                    return Localized.czech ? "Záloha načtena." : "Backup imported.";
                case Settings.BackupOutcome.ImportFailed:
                    return Localized.czech ? "Soubor se nepodařilo načíst." : "Couldn't read the file.";
                default:
                    return "";
                }
            }
        }
    }
    PaneSlice {
        width: parent.width
        height: customsHeading.height + (root.hasCustoms ? 18 : none.height + 26)
        isTop: true

        PlainLabel {
            id: customsHeading
            x: 14
            y: 13
            text: Localized.czech ? "Vlastní zkratky" : "Custom Shortcuts"
            size: 12.5
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Paragraph {
            id: none
            x: 14
            anchors.top: customsHeading.bottom
            anchors.topMargin: 8
            width: parent.width - 28
            visible: !root.hasCustoms
            text: Localized.czech ? "Zatím žádné. Přidej si je, nebo je naimportuj z menu jiných aplikací." : "None yet. Add your own, or import them from other apps' menus."
            size: 12
            color: Theme.secondaryInk
        }
    }
}
