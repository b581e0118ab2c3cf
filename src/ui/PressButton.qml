// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// What all buttons have in common: Return presses them, too, and their words are in `label`. In the template's own `text`
// an ampersand makes a key of what follows it, and many words come from elsewhere.
T.Button {
    id: root

    property string label: ""

    // A key that is held presses once.
    function press(event: var): void {
        if (!event.isAutoRepeat)
            root.clicked();
    }

    Accessible.name: root.label
    // Assistive technologies press what is off, too.
    Accessible.onPressAction: {
        if (root.enabled)
            root.clicked();
    }
    Keys.onReturnPressed: event => root.press(event)
    Keys.onEnterPressed: event => root.press(event)
}
