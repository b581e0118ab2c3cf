// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A shortcut in the panel of the tray icon: its title and its keys, on a surface of its own.
RoundedRectangle {
    id: root

    required property string title
    required property list<string> keys

    implicitHeight: row.implicitHeight + 10
    radius: 8
    color: Theme.glass

    ShortcutRow {
        id: row
        x: 8
        y: 5
        width: root.width - 16
        title: root.title
        keys: root.keys
    }
}
