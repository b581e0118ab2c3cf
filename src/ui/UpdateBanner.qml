// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Tells of a newer version until the person skips it, and leads to it.
FocusScope {
    id: root

    required property UpdateChecker updates

    // The person turns the version down; `hasFocus` tells whether that leaves nobody with the keyboard.
    signal skipping(hasFocus: bool)

    function skip(): void {
        root.skipping(root.activeFocus);
        root.updates.skip();
    }

    implicitHeight: Math.max(texts.height, buttons.height) + 20
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title.text

    RoundedRectangle {
        anchors.fill: parent
        radius: 12
        color: Theme.softAccent
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.highContrast ? Theme.hairline : Theme.soft(Theme.accent)
    }
    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        x: 14
        name: "arrow_circle_down-fill"
        color: Theme.accent
    }
    Column {
        id: texts
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: symbol.right
        anchors.leftMargin: 14
        anchors.right: buttons.left
        anchors.rightMargin: buttons.spacing
        spacing: 2

        PlainLabel {
            id: title
            width: parent.width
            text: Localized.czech ? "Dostupná nová verze " + root.updates.shownVersion : "New version " + root.updates.shownVersion + " available"
            font.weight: Theme.strongWeight
        }
        PlainLabel {
            id: line
            width: parent.width
            text: {
                if (root.updates.shownNotes.length > 0)
                    return root.updates.shownNotes;
                return Localized.czech ? "Ty máš verzi " + root.updates.currentVersion + ". Stáhni novou a přetáhni do Applications."
                                       : "You have version " + root.updates.currentVersion + ". Download the new one and drag it into Applications.";
            }
            size: 11.5
            color: Theme.secondaryInk
            wrapMode: Text.Wrap
            maximumLineCount: 3
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    Row {
        id: buttons
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 12
        // As far between what is seen: a button that is nothing but text has a border around it.
        spacing: 14 - skip.leftPadding

        PlainButton {
            id: skip
            anchors.verticalCenter: parent.verticalCenter
            height: 28
            horizontalPadding: 6
            size: 11.5
            color: hovered ? Theme.ink : Theme.secondaryInk
            label: Localized.czech ? "Přeskočit" : "Skip"
            onClicked: root.skip()
        }
        ProminentButton {
            height: 28
            visible: root.updates.hasDownloadPage
            label: Localized.czech ? "Stáhnout" : "Download"
            onClicked: root.updates.openDownloadPage()
        }
    }
}
