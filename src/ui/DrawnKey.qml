// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A key of the drawn keyboard.
PressButton {
    id: root

    required property string token
    // Whether keys are marked at all, and whether this one is.
    property bool isMarking: false
    property bool available: false
    property bool selected: false

    readonly property bool isInPlay: root.selected || root.available
    readonly property color ink: root.selected ? Theme.accentInk : root.available ? Theme.accentText : Theme.tertiaryInk

    // Arrow keys lead here, not Tab.
    focusPolicy: Qt.ClickFocus
    label: Localized.keyCapLabel(root.token, Localized.czech)
    Accessible.name: {
        let name = Localized.spokenKeys([root.token], Localized.czech);
        if (root.isMarking && Localized.czech)
            name += root.available ? ", dostupná" : ", nedostupná";
        else if (root.isMarking)
            name += root.available ? ", available" : ", not available";
        if (root.selected)
            name += Localized.czech ? ", vybraná" : ", selected";
        return name;
    }
    Accessible.selectable: true
    Accessible.selected: root.selected

    contentItem: PlainLabel {
        text: root.label
        color: root.ink
        opacity: root.down ? 0.7 : 1
        font.weight: root.isInPlay || !Theme.highContrast ? Theme.strongWeight : Theme.regularWeight
        fontSizeMode: Text.HorizontalFit
        horizontalAlignment: Text.AlignHCenter
    }
    background: RoundedRectangle {
        // Half of what it is for others.
        function dimmed(tint: color): color {
            return Qt.alpha(tint, tint.a / 2);
        }

        radius: 8
        color: root.selected ? Theme.accent : root.available ? Theme.capFill : dimmed(Theme.capFill)
        // With much contrast all outlines are strong, and the colour alone would not tell which key does something.
        borderWidth: root.isInPlay ? Theme.hairlineWidth : 1
        borderColor: root.isInPlay ? Theme.accent : Theme.highContrast ? Theme.hairline : dimmed(Theme.hairline)

        RoundedRectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.softAccent : Theme.hoverFill
            visible: root.hovered || root.down
        }
        FocusRing {
            control: root
        }
    }
}
