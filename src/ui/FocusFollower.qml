// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Tells when the keyboard comes to something within an item, which can then be brought into view.
Item {
    id: root

    required property Item within

    signal moved(focused: Item)

    Connections {
        target: root.Window.window

        // Nothing may move under a pointer that is pressed.
        function onActiveFocusItemChanged(): void {
            const focused = root.Window.activeFocusItem;
            if (!Theme.showsFocus)
                return;
            for (let item = focused; item !== null; item = item.parent) {
                if (item === root.within)
                    root.moved(focused);
            }
        }
    }
}
