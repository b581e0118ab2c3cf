// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
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

    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: Localized.spokenKeys(root.keys, Localized.czech) + ". " + root.detail
    Accessible.focusable: true
    Accessible.focused: root.activeFocus

    Keys.onSpacePressed: root.favoriteToggled(root.shortcutId)
    Keys.onReturnPressed: root.favoriteToggled(root.shortcutId)
    Keys.onEnterPressed: root.favoriteToggled(root.shortcutId)

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

        // Grows by its measures: a transformation would leave seams in what the software renderer draws.
        property real growth: hover.hovered ? 1.012 : 1

        anchors.centerIn: parent
        width: Math.round(root.width * card.growth)
        height: Math.round(root.height * card.growth)
        raised: hover.hovered

        Behavior on growth {
            enabled: !Theme.reducedMotion

            SpringAnimation {
                spring: 4
                damping: 0.42
                epsilon: 0.0005
            }
        }

        ColumnLayout {
            anchors.fill: parent
            anchors.margins: 14
            spacing: 12

            RowLayout {
                Layout.preferredHeight: 16
                spacing: 6

                Symbol {
                    name: Localized.categorySymbol(root.category)
                    color: Theme.secondaryInk
                    size: 13
                }
                PlainLabel {
                    Layout.fillWidth: true
                    text: root.headerText
                    size: 11
                    color: Theme.secondaryInk
                }
                T.CheckBox {
                    id: star

                    Layout.preferredWidth: 24
                    Layout.preferredHeight: 24
                    // Larger to hit than to see.
                    Layout.rightMargin: -5
                    Layout.topMargin: -4
                    Layout.bottomMargin: -4
                    focusPolicy: Qt.NoFocus
                    checked: root.isFavorite
                    // The model decides what is a favourite; the star follows.
                    nextCheckState: () => star.checkState
                    Accessible.name: (Localized.czech ? "Oblíbená: " : "Favorite: ") + root.title
                    Accessible.onPressAction: star.clicked()
                    Accessible.onToggleAction: star.clicked()
                    onClicked: root.favoriteToggled(root.shortcutId)

                    contentItem: Item {
                        Symbol {
                            anchors.centerIn: parent
                            name: root.isFavorite ? "star-fill" : "star"
                            color: root.isFavorite ? Theme.star : star.hovered ? Theme.ink : Theme.tertiaryInk
                            opacity: star.down ? 0.7 : 1
                        }
                    }
                }
            }
            ColumnLayout {
                spacing: 2

                PlainLabel {
                    Layout.fillWidth: true
                    text: root.title
                    size: 14
                    font.weight: Theme.strongWeight
                }
                PlainLabel {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    text: root.detail
                    size: 11.5
                    color: Theme.secondaryInk
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    verticalAlignment: Text.AlignTop
                }
            }
            Item {
                id: capsPlace

                Layout.fillWidth: true
                Layout.preferredHeight: 30
                clip: caps.compact

                KeyCaps {
                    id: caps

                    // Long sequences get small caps rather than caps behind the card's edge.
                    readonly property real fullWidth: fullSize.implicitWidth

                    anchors.bottom: parent.bottom
                    keys: root.keys // qmllint disable type
                    compact: fullWidth > capsPlace.width
                }
                KeyCaps {
                    id: fullSize
                    visible: false
                    keys: root.keys.length > 6 ? root.keys : [] // qmllint disable type
                }
            }
        }
        FocusRing {
            control: root
            cornerRadius: card.cornerRadius
            gap: 1
        }
    }
}
