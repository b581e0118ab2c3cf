// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// One key of a combination, or the arrow between two steps.
Item {
    id: root

    required property string token
    property bool isStep: false
    property bool compact: false

    implicitWidth: root.isStep ? step.width : Math.max(root.compact ? 20 : 28, Math.ceil(label.implicitWidth) + 2 * (root.compact ? 5 : 8))
    implicitHeight: root.compact ? 21 : 30

    RoundedRectangle {
        anchors.fill: parent
        visible: !root.isStep
        radius: root.compact ? 5 : 7
        color: Theme.capFill
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.capOutline
    }
    PlainLabel {
        id: label
        anchors.centerIn: parent
        visible: !root.isStep
        text: Localized.keyCapLabel(root.token, Localized.czech)
        size: root.compact ? 10 : 13
        font.weight: Theme.strongWeight
    }
    Symbol {
        id: step
        anchors.centerIn: parent
        visible: root.isStep
        name: "arrow_forward"
        size: root.compact ? 9 : 11
        color: Theme.secondaryInk
    }
}
