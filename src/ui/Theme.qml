// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

pragma Singleton

import QtQuick

// The look: colours, type and motion. Its three switches follow the desktop.
QtObject {
    property bool dark: false
    property bool highContrast: false
    property bool reducedMotion: false
    // The person works with the keyboard, so focus is worth a ring.
    property bool showsFocus: false

    readonly property color base: dark ? "#17171C" : "#F4F4F8"
    readonly property color sheet: dark ? "#222228" : "#F7F7FB"
    readonly property color ink: dark ? "#F2F2F6" : "#1B1B22"
    readonly property color secondaryInk: highContrast ? ink : dark ? "#A5A5B2" : "#62626E"
    readonly property color tertiaryInk: highContrast ? secondaryInk : dark ? "#70707E" : "#9A9AA6"
    readonly property color glass: dark ? Qt.rgba(1, 1, 1, 0.055) : Qt.rgba(1, 1, 1, 0.72)
    // Glass over the base; opaque, so that a card does not show its own shadow.
    readonly property color card: dark ? "#242429" : "#FCFCFD"
    readonly property color sidebarGlass: dark ? Qt.rgba(1, 1, 1, 0.035) : Qt.rgba(1, 1, 1, 0.55)
    readonly property color hairline: highContrast ? secondaryInk : dark ? Qt.rgba(1, 1, 1, 0.1)
                                                                         : Qt.rgba(20 / 255, 20 / 255, 40 / 255, 0.09)
    readonly property int hairlineWidth: highContrast ? 2 : 1
    readonly property color capFill: dark ? Qt.rgba(1, 1, 1, 0.07) : "#FFFFFF"
    readonly property color capOutline: highContrast ? ink : dark ? Qt.rgba(1, 1, 1, 0.28)
                                                                  : Qt.rgba(27 / 255, 27 / 255, 34 / 255, 0.28)
    readonly property color accent: dark ? "#8B8BF5" : "#5B5BD6"
    readonly property color accentInk: dark ? "#15151B" : "#FFFFFF"
    readonly property color softAccent: Qt.rgba(accent.r, accent.g, accent.b, dark ? 0.18 : 0.12)
    readonly property color hoverFill: dark ? Qt.rgba(1, 1, 1, 0.05) : Qt.rgba(20 / 255, 20 / 255, 40 / 255, 0.045)
    readonly property color star: dark ? "#F7C24B" : "#E5A000"
    readonly property color right: dark ? "#4CC38A" : "#1F9D61"
    readonly property color firstGlow: dark ? Qt.rgba(120 / 255, 120 / 255, 1, 0.1)
                                            : Qt.rgba(91 / 255, 91 / 255, 214 / 255, 0.1)
    readonly property color secondGlow: Qt.rgba(1, 140 / 255, 80 / 255, dark ? 0.06 : 0.09)

    readonly property int regularWeight: 400
    readonly property int mediumWeight: 550
    readonly property int strongWeight: 650

    // Type is measured in points of 1/96 inch, like everything else on the screen; fonts count 72 to the inch.
    function points(size: real): real {
        return size * 0.75;
    }
}
