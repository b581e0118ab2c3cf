// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The form for a shortcut of the person's own. Return saves it.
FocusScope {
    id: root

    required property string title
    required property CustomShortcutDraft draft
    required property KeyReader keyReader

    signal done

    function save(): void {
        if (root.draft.save())
            root.done();
    }


    implicitHeight: column.height
    Keys.onReturnPressed: root.save()
    Keys.onEnterPressed: root.save()

    Column {
        id: column
        width: parent.width
        spacing: 14

        PlainLabel {
            width: parent.width
            text: root.title
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        FormField {
            id: titleField
            width: parent.width
            label: Localized.czech ? "Název" : "Title"

            FormTextField {
                width: parent.width
                focus: true
                name: titleField.label
                text: root.draft.title
                onTextEdited: root.draft.title = text
            }
        }
        KeysField {
            id: keysEditor
            width: parent.width
            draft: root.draft
            keyReader: root.keyReader
        }
        Row {
            width: parent.width
            spacing: 12

            FormField {
                id: categoryField
                width: (parent.width - parent.spacing) / 2
                label: Localized.czech ? "Kategorie" : "Category"

                CategoryChoice {
                    width: parent.width
                    name: categoryField.label
                    currentIndex: root.draft.category
                    onActivated: index => root.draft.category = index
                    onFinished: root.save()
                }
            }
            FormField {
                id: appField
                width: categoryField.width
                label: Localized.czech ? "Aplikace (volitelné)" : "App (optional)"

                FormTextField {
                    width: parent.width
                    name: appField.label
                    placeholderText: Localized.czech ? "např. Finder" : "e.g. Finder"
                    text: root.draft.app
                    onTextEdited: root.draft.app = text
                }
            }
        }
        FormField {
            id: detailField
            width: parent.width
            label: Localized.czech ? "Popis" : "Description"

            FormTextField {
                width: parent.width
                name: detailField.label
                maximumLength: 400
                text: root.draft.detail
                onTextEdited: root.draft.detail = text
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 10

            GlassButton {
                label: Localized.czech ? "Zrušit" : "Cancel"
                onClicked: root.done()
            }
            ProminentButton {
                label: Localized.czech ? "Uložit" : "Save"
                enabled: root.draft.canSave
                onClicked: root.save()
            }
        }
    }
}
