// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// Shows where the keyboard is; fills the control that it belongs to.
Rectangle {
    id: root

    required property Item control
    property real cornerRadius: 8
    property real gap: 2

    anchors.fill: parent
    anchors.margins: -root.gap
    radius: root.cornerRadius + root.gap
    color: "transparent"
    border.width: 2
    border.color: Theme.accent
    visible: root.control.activeFocus && Theme.showsFocus
}
