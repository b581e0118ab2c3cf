// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// A scroll bar that stays out of the way.
T.ScrollBar {
    id: root

    implicitWidth: 10
    padding: 3
    minimumSize: 0.08
    visible: root.size < 1

    contentItem: Rectangle {
        implicitWidth: 4
        radius: 2
        color: Theme.ink
        opacity: root.pressed ? 0.5 : root.hovered ? 0.4 : 0.2
    }
}
