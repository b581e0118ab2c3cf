// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// One shortcut: where it belongs, what it does, its keys, and whether it is a favourite. Space toggles that.
Item {
    id: root

    required property string shortcutId
    required property string title
    required property string detail
    required property string headerText
    required property int category
    required property list<string> keys
    required property bool isFavorite

    signal favoriteToggled(shortcutId: string)
    signal pressed

    // A key that is held toggles once.
    function toggle(event: var): void {
        if (!event.isAutoRepeat)
            root.favoriteToggled(root.shortcutId);
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: Localized.spokenKeys(root.keys, Localized.czech) + ". " + root.detail
    // Whether it is a favourite, which the keyboard toggles here.
    Accessible.checkable: true
    Accessible.checked: root.isFavorite
    Accessible.focusable: true
    Accessible.focused: root.activeFocus

    Keys.onSpacePressed: event => root.toggle(event)
    Keys.onReturnPressed: event => root.toggle(event)
    Keys.onEnterPressed: event => root.toggle(event)

    HoverHandler {
        id: hover
    }
    TapHandler {
        onPressedChanged: {
            if (pressed)
                root.pressed();
        }
    }

    Card {
        id: card

        // From 0 to 1, and a little beyond while the spring swings.
        property real lift: hover.hovered ? 1 : 0

        // Grows by its measures: a transformation would leave seams in what the software renderer draws.
        readonly property real growth: 1 + 0.012 * card.lift
        readonly property int margin: 14
        readonly property real contentWidth: card.width - 2 * card.margin

        anchors.centerIn: parent
        width: Math.round(root.width * card.growth)
        height: Math.round(root.height * card.growth)
        elevation: Math.max(0, Math.min(card.lift, 1))

        Behavior on lift {
            enabled: !Theme.reducedMotion

            // Half a second of response and a damping ratio of 0.85, in the units of the toolkit's 16 ms steps.
            SpringAnimation {
                spring: 2.13
                damping: 0.29
                epsilon: 0.02
            }
        }

        Symbol {
            id: symbol
            x: card.margin
            anchors.verticalCenter: header.verticalCenter
            name: Localized.categorySymbol(root.category)
            color: Theme.secondaryInk
            size: 13
        }
        PlainLabel {
            id: header
            anchors.left: symbol.right
            anchors.leftMargin: 6
            anchors.right: star.left
            anchors.rightMargin: 6
            y: card.margin
            height: 16
            text: root.headerText
            size: 11
            color: Theme.secondaryInk
        }
        // Not the template's check box: each one that Qt 6.4 makes while assistive technologies listen leaves memory behind,
        // and cards come and go with every keystroke in the search field.
        Item {
            id: star

            // Larger to hit than to see.
            anchors.right: parent.right
            anchors.rightMargin: card.margin - 5
            anchors.verticalCenter: header.verticalCenter
            width: 24
            height: 24
            Accessible.role: Accessible.CheckBox
            Accessible.name: (Localized.czech ? "Oblíbená: " : "Favorite: ") + root.title
            Accessible.checkable: true
            Accessible.checked: root.isFavorite
            Accessible.onPressAction: root.favoriteToggled(root.shortcutId)
            Accessible.onToggleAction: root.favoriteToggled(root.shortcutId)

            HoverHandler {
                id: starHover
            }
            TapHandler {
                id: starTap
                gesturePolicy: TapHandler.ReleaseWithinBounds
                onTapped: root.favoriteToggled(root.shortcutId)
            }
            Symbol {
                anchors.centerIn: parent
                name: root.isFavorite ? "star-fill" : "star"
                color: root.isFavorite ? Theme.star : starHover.hovered ? Theme.ink : Theme.tertiaryInk
                opacity: starTap.pressed ? 0.7 : 1
            }
        }
        PlainLabel {
            id: title
            anchors.top: header.bottom
            anchors.topMargin: 12
            x: card.margin
            width: card.contentWidth
            text: root.title
            size: 14
            font.weight: Theme.strongWeight
        }
        PlainLabel {
            anchors.top: title.bottom
            anchors.topMargin: 2
            anchors.bottom: capsPlace.top
            anchors.bottomMargin: 12
            x: card.margin
            width: card.contentWidth
            text: root.detail
            size: 11.5
            color: Theme.secondaryInk
            wrapMode: Text.Wrap
            maximumLineCount: 2
            verticalAlignment: Text.AlignTop
        }
        Item {
            id: capsPlace

            anchors.bottom: parent.bottom
            anchors.bottomMargin: card.margin
            x: card.margin
            width: card.contentWidth
            height: 30
            clip: caps.implicitWidth > width

            // Long sequences get small caps rather than caps behind the edge of the card at rest.
            KeyCaps {
                id: caps
                anchors.bottom: parent.bottom
                keys: root.keys // qmllint disable type
                availableWidth: root.width - 2 * card.margin
            }
        }
        FocusRing {
            control: root
            cornerRadius: card.cornerRadius
            gap: 1
        }
    }
}
