// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import Keyvora

// Chooses the format of the cheat sheet, shows it, and hands it to a file or a printer.
AppSheet {
    id: root

    required property CheatSheets sheets

    property int format: root.sheets.a4

    readonly property int deskHeight: 258
    readonly property int leastDeskHeight: 80

    title: Localized.czech ? "Export taháku" : "Export Cheat Sheet"
    implicitWidth: 620
    padding: 18
    // The preview gives way first.
    leastBodyHeight: root.body.implicitHeight - root.deskHeight + root.leastDeskHeight

    body: ColumnLayout {
        spacing: 14

        ColumnLayout {
            spacing: 2

            PlainLabel {
                text: root.title
                size: 17
                font.weight: Theme.strongWeight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Paragraph {
                Layout.fillWidth: true
                text: Localized.czech ? "Vyber formát a ulož nebo rovnou vytiskni." : "Pick a format, then save or print it directly."
                size: 12.5
                color: Theme.secondaryInk
            }
        }
        SizeOptions {
            Layout.fillWidth: true
            focus: true
            sheets: root.sheets
            onFormatChanged: root.format = format
        }
        SheetDesk {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: root.leastDeskHeight
            Layout.preferredHeight: root.deskHeight
            format: root.format
            formatName: root.sheets.label(root.format, Localized.czech)
        }
        RowLayout {
            spacing: 10

            GlassButton {
                label: Localized.czech ? "Zrušit" : "Cancel"
                onClicked: root.close()
            }
            Item {
                Layout.fillWidth: true
            }
            GlassButton {
                label: Localized.czech ? "Vytisknout…" : "Print…"
                onClicked: {
                    root.sheets.print(root.format, root.parent.Window.window);
                    root.close();
                }
            }
            ProminentButton {
                label: Localized.czech ? "Uložit PDF…" : "Save PDF…"
                onClicked: {
                    root.sheets.exportPDF(root.format, root.parent.Window.window);
                    root.close();
                }
            }
        }
    }
}
