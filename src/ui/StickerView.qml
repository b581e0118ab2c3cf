// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The essentials on one page, and the way to have them on paper.
ScrollPage {
    id: root

    required property AppModel appModel
    required property CheatSheets sheets

    signal exportRequested

    spacing: 6

    Paragraph {
        text: Localized.czech ? "Nejdůležitější zkratky na jednom místě" : "The most important shortcuts in one place"
        size: 17
        font.weight: Theme.strongWeight
        Accessible.role: Accessible.Heading
    }
    Paragraph {
        text: Localized.czech ? "Digitální verze samolepky – přehledná, vždy dostupná a připravená k procvičení."
                              : "A digital cheat sheet — clear, always at hand, ready to practice."
        size: 13
        color: Theme.secondaryInk
    }
    Item {
        width: 1
        height: 4
    }
    ProminentButton {
        label: Localized.czech ? "Exportovat tahák…" : "Export Cheat Sheet…"
        onClicked: root.exportRequested()
    }
    Item {
        width: 1
        height: 4
    }
    CardFlow {
        width: parent.width
        appModel: root.appModel
        shortcuts: root.sheets.sticker
    }
}
