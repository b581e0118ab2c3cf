// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A menu that drops down.
T.Menu {
    id: root

    // The arrow keys that lead to the menu beside this one.
    signal nextRequested
    signal previousRequested

    function highlightFirst(): void {
        for (let i = 0; i < root.count; ++i) {
            const item = root.itemAt(i) as AppMenuItem;
            if (item !== null && item.enabled) {
                root.currentIndex = i;
                return;
            }
        }
    }

    implicitWidth: Math.min(420, Math.max(180, contentItem.implicitWidth + leftPadding + rightPadding))
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 5
    margins: 4
    focus: true
    // Who opens a menu with the keyboard goes on with it.
    onOpened: {
        if (Theme.showsFocus)
            root.highlightFirst();
    }

    contentItem: ListView {
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < root.count; ++i)
                widest = Math.max(widest, root.itemAt(i)?.implicitWidth ?? 0);
            return widest;
        }
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: false
        currentIndex: root.currentIndex

        Shortcut {
            sequence: "Right"
            enabled: root.visible
            onActivated: root.nextRequested()
        }
        Shortcut {
            sequence: "Left"
            enabled: root.visible
            onActivated: root.previousRequested()
        }
    }
    background: RoundedRectangle {
        radius: 10
        color: Theme.sheet
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
