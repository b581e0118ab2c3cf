// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// Searches as the person types. Escape empties it.
T.TextField {
    id: root

    required property AppModel appModel

    // The button in it goes, and would keep the keyboard.
    function empty(): void {
        root.clear();
        root.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitWidth: 169
    implicitHeight: 32
    leftPadding: 33
    rightPadding: 30
    text: root.appModel.search
    placeholderText: Localized.czech ? "Hledat" : "Search"
    placeholderTextColor: Theme.placeholderInk
    color: Theme.ink
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    font.pointSize: Theme.points(12.5)
    maximumLength: 200
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter
    Accessible.role: Accessible.EditableText
    Accessible.name: root.placeholderText
    onTextChanged: root.appModel.search = root.text
    Keys.onEscapePressed: event => {
        event.accepted = root.text.length > 0;
        root.empty();
    }

    Connections {
        target: root.appModel

        function onSearchChanged(): void {
            if (root.text !== root.appModel.search)
                root.text = root.appModel.search;
        }
    }

    background: RoundedRectangle {
        radius: 10
        color: Theme.glass
        borderWidth: root.activeFocus ? Theme.strongLineWidth : Theme.hairlineWidth
        borderColor: root.activeFocus ? Theme.accent : Theme.hairline

        Symbol {
            x: 11
            anchors.verticalCenter: parent.verticalCenter
            name: "search"
            size: 14
            color: Theme.secondaryInk
        }
        PlainLabel {
            x: root.leftPadding
            width: root.width - root.leftPadding - root.rightPadding
            height: parent.height
            visible: root.text.length === 0 && root.preeditText.length === 0
            text: root.placeholderText
            size: 12.5
            color: Theme.placeholderInk
        }
    }

    SymbolButton {
        id: clearButton

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        width: 24
        height: 24
        visible: root.text.length > 0
        symbol: "cancel-fill"
        size: 15
        label: Localized.czech ? "Vymazat hledání" : "Clear search"
        onClicked: root.empty()
    }
}
