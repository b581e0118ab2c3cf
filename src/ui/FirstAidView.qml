// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The way out of a few tight spots, and a warning about what is no shortcut.
ScrollPage {
    id: root

    required property AppModel appModel
    required property FirstAidModel groups

    Column {
        width: parent.width
        spacing: 4

        Paragraph {
            text: Localized.czech ? "Co se právě stalo?" : "What just happened?"
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
        }
        Paragraph {
            text: Localized.czech ? "Vyber situaci. Keyvora nabídne nejrychlejší cestu ven."
                                  : "Pick a situation. Keyvora will suggest the fastest way out."
            color: Theme.secondaryInk
        }
    }
    Repeater {
        model: root.groups

        // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
        // qmllint disable unqualified
        delegate: TitledPanel {
            id: panel

            required property ShortcutListModel shortcuts
            required title
            required symbol

            width: parent.width

            CardFlow {
                width: parent.width
                appModel: root.appModel
                shortcuts: panel.shortcuts
                Accessible.name: panel.title
            }
        }
        // qmllint enable unqualified
    }
    TitledPanel {
        width: parent.width
        symbol: "gpp_maybe-fill"
        tint: Theme.warning
        borderColor: Theme.warningOutline
        title: Localized.czech ? "Spuštění a obnovení Macu" : "Startup & recovery"

        Paragraph {
            text: Localized.czech
                  ? "Tyto postupy nejsou běžné klávesové zkratky. Nejdřív Mac bezpečně vypněte a uložte práci."
                  : "These aren't regular keyboard shortcuts. Shut down your Mac safely first and save your work."
            lineHeight: 1.15
            font.weight: Theme.mediumWeight
        }
        Paragraph {
            text: Localized.czech
                  ? "Mac s čipem Apple zapněte a zapínací tlačítko držte, dokud se neobjeví možnosti spuštění. Tam vyberte disk, ze kterého se má Mac spustit, nebo Volby, které vedou k obnovení systému. Do bezpečného režimu se dostanete, když vyberete disk a při potvrzení podržíte Shift. Na Macu s procesorem Intel držte hned po stisknutí zapínacího tlačítka Command-R pro obnovení, Option pro výběr spouštěcího disku, Shift pro bezpečný režim, nebo D pro diagnostiku."
                  : "On a Mac with Apple silicon, turn it on and keep holding the power button until the startup options appear. There, choose the disk to start from, or Options to get to recovery. For safe mode, choose your disk and hold Shift while you confirm. On an Intel Mac, right after pressing the power button, hold Command-R for recovery, Option to choose the startup disk, Shift for safe mode, or D for diagnostics."
            lineHeight: 1.15
            color: Theme.secondaryInk
        }
        Paragraph {
            text: Localized.czech
                  ? "Reset NVRAM a staré startovací kombinace nepoužívejte bez ověření typu Macu a aktuální dokumentace Apple."
                  : "Don't use an NVRAM reset or old startup key combos without checking your Mac's type and Apple's current documentation."
            lineHeight: 1.15
            color: Theme.secondaryInk
        }
    }
}
