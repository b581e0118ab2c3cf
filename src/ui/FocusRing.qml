// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Shows where the keyboard is; fills the control that it belongs to.
RoundedRectangle {
    id: root

    required property Item control
    property real cornerRadius: 8
    property real gap: 2

    anchors.fill: parent
    anchors.margins: -root.gap
    radius: root.cornerRadius + root.gap
    color: "transparent"
    borderWidth: 2
    borderColor: Theme.accent
    visible: root.control.activeFocus && Theme.showsFocus
}
