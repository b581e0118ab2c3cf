// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// What the main menu stands on.
Rectangle {
    implicitHeight: 28
    color: Theme.sidebarGlass

    RoundedRectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairlineWidth
        color: Theme.hairline
    }
}
