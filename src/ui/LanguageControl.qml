// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// Chooses the language of the interface; takes effect at once.
FocusScope {
    id: root

    implicitWidth: choices.implicitWidth
    implicitHeight: choices.implicitHeight

    component Choice: T.RadioButton {
        id: choice

        required property bool isCzech

        implicitWidth: implicitContentWidth + 26
        implicitHeight: 32
        checked: Localized.czech === choice.isCzech
        opacity: choice.down ? 0.7 : 1
        Accessible.name: choice.text
        Accessible.onPressAction: choice.clicked()
        Accessible.onToggleAction: choice.clicked()
        Keys.onReturnPressed: choice.clicked()
        Keys.onEnterPressed: choice.clicked()
        onClicked: Localized.czech = choice.isCzech

        contentItem: PlainLabel {
            text: (choice.isCzech ? "🇨🇿 " : "🇬🇧 ") + choice.text
            size: 12
            color: choice.checked ? Theme.accentInk : Theme.ink
            font.weight: Theme.mediumWeight
            horizontalAlignment: Text.AlignHCenter
        }
        background: RoundedRectangle {
            radius: 9
            color: choice.checked ? Theme.accent : Theme.capFill
            borderWidth: choice.checked ? 0 : Theme.hairlineWidth
            borderColor: Theme.hairline

            FocusRing {
                control: choice
                cornerRadius: 9
            }
        }
    }

    Row {
        id: choices
        spacing: 8

        Choice {
            text: "Čeština"
            isCzech: true
            focus: checked
        }
        Choice {
            text: "English"
            isCzech: false
            focus: checked
        }
    }
}
