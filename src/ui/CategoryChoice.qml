// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A choice among the categories.
T.ComboBox {
    id: root

    required property string name

    signal finished

    function finish(): bool {
        if (root.popup.visible)
            return false;
        root.finished();
        return true;
    }

    function choose(category: int): void {
        root.currentIndex = category;
        root.activated(category);
        root.popup.close();
    }

    implicitHeight: 32
    leftPadding: 11
    rightPadding: 11
    // The names, so that a letter finds one. They stay as they are when the language changes, and with them the choice.
    model: Array.from({
        "length": Localized.categoryCount
    }, (_, index) => ({
                "czech": Localized.categoryName(index, true),
                "english": Localized.categoryName(index, false)
            }))
    textRole: Localized.czech ? "czech" : "english"
    displayText: Localized.categoryName(root.currentIndex, Localized.czech)
    Accessible.name: root.name
    Accessible.description: root.displayText
    Accessible.onPressAction: root.popup.open()
    // The form's Return saves; the list's chooses.
    Keys.onReturnPressed: event => event.accepted = root.finish()
    Keys.onEnterPressed: event => event.accepted = root.finish()

    contentItem: PlainLabel {
        text: root.displayText
        size: 12.5
    }
    indicator: Symbol {
        x: root.width - width - 9
        anchors.verticalCenter: root.verticalCenter
        name: "keyboard_arrow_down"
        size: 15
        color: Theme.secondaryInk
    }
    background: RoundedRectangle {
        radius: 10
        color: Theme.capFill
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline

        RoundedRectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Theme.hoverFill
            visible: root.hovered
        }
        FocusRing {
            control: root
            cornerRadius: 10
        }
    }
    // Qt 6.4 gives the linter no way to know that a component belongs to the one around it.
    // qmllint disable unqualified
    delegate: T.ItemDelegate {
        id: entry

        required property int index
        // Not `text`: see `PressButton`.
        readonly property string label: Localized.categoryName(entry.index, Localized.czech)

        width: ListView.view.width
        height: 28
        highlighted: root.highlightedIndex === entry.index
        Accessible.name: entry.label
        Accessible.onPressAction: root.choose(entry.index)

        contentItem: PlainLabel {
            x: 10
            text: entry.label
            size: 12
            leftPadding: 10
            color: entry.highlighted ? Theme.accentInk : Theme.ink
        }
        background: RoundedRectangle {
            radius: 6
            color: entry.highlighted ? Theme.accent : "transparent"
        }
    }
    popup: T.Popup {
        y: root.height + 4
        width: root.width
        height: contentHeight + 10
        padding: 5
        margins: 6

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            interactive: false
            model: root.popup.visible ? root.delegateModel : null
            currentIndex: root.highlightedIndex
        }
        background: RoundedRectangle {
            radius: 10
            color: Theme.sheet
            borderWidth: Theme.hairlineWidth
            borderColor: Theme.hairline
        }
    }
    // qmllint enable unqualified
}
