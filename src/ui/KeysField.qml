// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Where the keys of a shortcut are written or pressed, how they will look, and who has them already.
FormField {
    id: root

    required property CustomShortcutDraft draft
    required property KeyReader keyReader

    // Takes the next combination from the keyboard.
    function beginPressing(): void {
        field.visible = true;
        field.forceActiveFocus(Qt.OtherFocusReason);
    }

    function endPressing(): void {
        field.visible = false;
        keysText.forceActiveFocus(Qt.OtherFocusReason);
    }

    label: Localized.czech ? "Klávesy (oddělte + a → pro krok)" : "Keys (separate with + and → for steps)"

    Item {
        width: parent.width
        height: 32

        FormTextField {
            id: keysText
            visible: !field.visible
            width: parent.width - button.width - 8
            name: root.label
            placeholderText: Localized.czech ? "např. ⌥ + ⌘ + K nebo ⌘+K → ⌘+C" : "e.g. ⌥ + ⌘ + K or ⌘+K → ⌘+C"
            text: root.draft.keysText
            onTextEdited: root.draft.keysText = text
        }
        GlassButton {
            id: button
            visible: !field.visible
            anchors.right: parent.right
            symbol: "keyboard"
            label: Localized.czech ? "Stisknout klávesy" : "Press keys"
            onClicked: root.beginPressing()
        }
        KeyCaptureView {
            id: field
            anchors.fill: parent
            visible: false
            reader: root.keyReader
            isNarrow: true
            onPressed: press => {
                root.draft.takeKeys(press);
                root.endPressing();
            }
            onReleased: root.endPressing()
            onActiveFocusChanged: {
                if (field.activeFocus)
                    return;
                // What was pressed elsewhere has the focus next; where that is nothing, or another window, the
                // text does, and not what hides.
                field.visible = false;
                keysText.focus = true;
            }
        }
    }
    // Both lines have their place from the start, so that nothing moves while the keys are written.
    Item {
        width: parent.width
        height: 21
        clip: true

        KeyCaps {
            keys: root.draft.keys // qmllint disable type
            compact: true
        }
    }
    Item {
        width: parent.width
        height: 20

        WarningLine {
            width: parent.width
            maximumLineCount: 1
            text: {
                if (root.draft.conflictTitle.length === 0)
                    return "";
                return Localized.czech ? "Tuhle kombinaci už používá „" + root.draft.conflictTitle + "“"
                                       : "This combination is already used by “" + root.draft.conflictTitle + "”";
            }
        }
    }
}
