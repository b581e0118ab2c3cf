// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// What shows whether a switch is on.
RoundedRectangle {
    id: root

    required property T.Switch control

    implicitWidth: 34
    implicitHeight: 20
    radius: 10
    color: root.control.checked ? Theme.accent : Theme.switchTrack

    RoundedRectangle {
        x: root.control.checked ? 16 : 2
        y: 2
        width: 16
        height: 16
        radius: 8
        color: root.control.checked ? Theme.accentInk : "#FFFFFF"

        Behavior on x {
            enabled: !Theme.reducedMotion

            NumberAnimation {
                duration: 120
                easing.type: Easing.OutQuad
            }
        }
    }
    FocusRing {
        control: root.control
        cornerRadius: 10
    }
}
