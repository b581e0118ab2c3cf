// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A slice of a pane that is drawn piece by piece, as the rows of a list are.
Item {
    id: root

    property bool isTop: false
    property bool isBottom: false

    clip: true

    RoundedRectangle {
        readonly property int beyond: 14

        y: root.isTop ? 0 : -beyond
        width: root.width
        height: root.height + (root.isTop ? 0 : beyond) + (root.isBottom ? 0 : beyond)
        radius: 12
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
}
