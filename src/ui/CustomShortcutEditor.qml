// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The sheet for a shortcut of the person's own.
AppSheet {
    id: root

    required property CustomShortcutDraft draft
    required property KeyReader keyReader

    title: Localized.czech ? "Přidat vlastní zkratku" : "Add Custom Shortcut"
    implicitWidth: 470
    padding: 18
    Component.onCompleted: root.draft.begin()

    body: CustomShortcutForm {
        focus: true
        title: root.title
        draft: root.draft
        keyReader: root.keyReader
        onDone: root.close()
    }
}
