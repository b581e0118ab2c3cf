// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The main window as it first appears. What it shows takes longer to make than a window to come up, and is given to it then.
FocusScope {
    id: root

    readonly property Item content: place.item as Item
    readonly property int minimumWidth: Theme.leastPageWidth
    readonly property int minimumHeight: menuBarGround.height + Theme.leastPageHeight

    function present(properties: var): void {
        place.setSource("ContentView.qml", properties);
    }

    focus: true

    Backdrop {
        anchors.fill: parent
    }
    MenuBarGround {
        id: menuBarGround
        width: parent.width
        visible: root.content === null
    }
    SidebarGround {
        anchors.top: menuBarGround.bottom
        anchors.bottom: parent.bottom
        visible: root.content === null
    }
    Loader {
        id: place
        anchors.fill: parent
        focus: true
    }
}
