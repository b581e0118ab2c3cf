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
    // What paper lies on.
    readonly property color desk: dark ? "#17171C" : "#E6E6F0"
    // Of windows that float over other programs.
    readonly property color floating: dark ? "#1E1E25" : "#FAFAFD"
    readonly property color ink: dark ? "#F2F2F6" : "#1B1B22"
    readonly property color secondaryInk: highContrast ? ink : dark ? "#A5A5B2" : "#62626E"
    readonly property color tertiaryInk: highContrast ? secondaryInk : dark ? "#70707E" : "#9A9AA6"
    // Of what stands in a field until something is written there; never as strong as what is written.
    readonly property color placeholderInk: highContrast ? dark ? "#A5A5B2" : "#62626E" : tertiaryInk
    readonly property color glass: dark ? Qt.rgba(1, 1, 1, 0.055) : Qt.rgba(1, 1, 1, 0.72)
    // Glass over the base; opaque, so that a card does not show its own shadow.
    readonly property color card: dark ? "#242429" : "#FCFCFD"
    readonly property color sidebarGlass: dark ? Qt.rgba(1, 1, 1, 0.035) : Qt.rgba(1, 1, 1, 0.55)
    readonly property color hairline: highContrast ? secondaryInk : dark ? Qt.rgba(1, 1, 1, 0.1)
                                                                         : Qt.rgba(20 / 255, 20 / 255, 40 / 255, 0.09)
    readonly property int hairlineWidth: highContrast ? 2 : 1
    // Of what is chosen or is written into: told from the rest by more than a colour.
    readonly property int strongLineWidth: highContrast ? 3 : 2
    readonly property color capFill: dark ? Qt.rgba(1, 1, 1, 0.07) : "#FFFFFF"
    readonly property color capOutline: highContrast ? ink : dark ? Qt.rgba(1, 1, 1, 0.28)
                                                                  : Qt.rgba(27 / 255, 27 / 255, 34 / 255, 0.28)
    readonly property color accent: dark ? "#8B8BF5" : "#5B5BD6"
    readonly property color accentInk: dark ? "#15151B" : "#FFFFFF"
    // Of text on a tint of itself, or on a tinted surface.
    readonly property color accentText: highContrast ? accent : dark ? "#A2A2F9" : "#5454CF"
    readonly property color softAccent: soft(accent)
    readonly property color hoverFill: dark ? Qt.rgba(1, 1, 1, 0.05) : Qt.rgba(20 / 255, 20 / 255, 40 / 255, 0.045)
    readonly property color switchTrack: highContrast ? secondaryInk : dark ? "#5B5B68" : "#9A9AA6"
    readonly property color star: dark ? "#F7C24B" : "#E5A000"
    readonly property color right: dark ? "#4CC38A" : "#1F9D61"
    readonly property color wrong: dark ? "#FF6B6B" : "#D64545"
    readonly property color warning: dark ? "#F0B35A" : "#C77700"
    // Of text, which needs more contrast than a symbol.
    readonly property color warningInk: dark ? warning : "#8F5600"
    readonly property color warningOutline: highContrast ? warning : Qt.rgba(warning.r, warning.g, warning.b, 0.35)
    readonly property color violet: dark ? "#B18CF0" : "#7E4CCE"
    readonly property color firstGlow: dark ? Qt.rgba(120 / 255, 120 / 255, 1, 0.1)
                                            : Qt.rgba(91 / 255, 91 / 255, 214 / 255, 0.1)
    readonly property color secondGlow: Qt.rgba(1, 140 / 255, 80 / 255, dark ? 0.06 : 0.09)

    readonly property int regularWeight: 400
    // A little below 550: fonts without a weight of that very number have one of 500 and one of 600, and the lighter
    // one is meant.
    readonly property int mediumWeight: 540
    readonly property int strongWeight: 650

    // What the main window needs below its menu.
    readonly property int leastPageWidth: 980
    readonly property int leastPageHeight: 650

    // Cards stand in columns that share the width.
    readonly property int cardHeight: 145
    readonly property int leastCardWidth: 250
    readonly property int cardSpacing: 14

    function cardColumns(width: real): int {
        return Math.max(1, Math.floor((width + cardSpacing) / (leastCardWidth + cardSpacing)));
    }

    // A tint that lets its background through, as wide surfaces want it.
    function soft(tint: color): color {
        return Qt.rgba(tint.r, tint.g, tint.b, dark ? 0.18 : 0.12);
    }

    // Type is measured in points of 1/96 inch, like everything else on the screen; fonts count 72 to the inch.
    function points(size: real): real {
        return size * 0.75;
    }
}
