// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Says for a while which shortcut would have done what was just done with the mouse. Stays while the pointer rests on
// it; a click leads to the shortcut.
FloatingCard {
    id: root

    required property AppModel appModel
    required property NoticeController controller
    property int duration: 6000 // milliseconds

    readonly property bool isCounting: root.Window.visibility !== Window.Hidden && !pointer.hovered

    function restart(): void {
        timer.running = false;
        timer.running = root.isCounting;
    }

    width: 340
    height: reason.y + reason.height + 14
    highlighted: pointer.hovered
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.appModel.suggestionTitle + ": " + Localized.spokenKeys(root.appModel.suggestionKeys, Localized.czech)
    Accessible.description: root.appModel.suggestionReason
    Accessible.onPressAction: root.controller.openShortcut()
    onIsCountingChanged: root.restart()

    Connections {
        target: root.controller

        function onPresented(): void {
            root.restart();
        }
    }
    Timer {
        id: timer
        interval: root.duration
        onTriggered: root.controller.dismiss()
    }
    HoverHandler {
        id: pointer
        cursorShape: Qt.PointingHandCursor
    }
    TapHandler {
        onTapped: root.controller.openShortcut()
    }

    ShortcutRow {
        id: row
        x: 16
        y: 14
        width: parent.width - 2 * x
        title: root.appModel.suggestionTitle
        keys: root.appModel.suggestionKeys // qmllint disable type
        size: 13.5
        weight: Theme.strongWeight
        Accessible.ignored: true
    }
    PlainLabel {
        id: reason
        anchors.top: row.bottom
        anchors.topMargin: 8
        x: row.x
        width: row.width
        text: root.appModel.suggestionReason
        size: 11.5
        lineHeight: 1.1
        color: Theme.secondaryInk
        wrapMode: Text.Wrap
        maximumLineCount: 3
        verticalAlignment: Text.AlignTop
    }
}
