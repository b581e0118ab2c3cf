// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A scroll bar that stays out of the way.
T.ScrollBar {
    id: root

    implicitWidth: 10
    implicitHeight: 10
    padding: 3
    minimumSize: 0.08
    visible: root.size < 1

    contentItem: RoundedRectangle {
        implicitWidth: 4
        implicitHeight: 4
        radius: 2
        color: Theme.ink
        opacity: Theme.highContrast ? 0.7 : root.pressed ? 0.5 : root.hovered ? 0.4 : 0.2
    }
}
