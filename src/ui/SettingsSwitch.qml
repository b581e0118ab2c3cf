// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T

// A switch with its text. It shows what is, not what was asked for: whoever hears `switched` decides.
T.Switch {
    id: root

    required property bool isOn

    signal switched(on: bool)

    // A key that is held switches once.
    function press(event: var): void {
        if (!event.isAutoRepeat)
            root.switched(!root.isOn);
    }

    function follow(): void {
        root.checked = Qt.binding(() => root.isOn);
    }

    implicitHeight: Math.max(26, label.implicitHeight + 4)
    opacity: root.down ? 0.7 : 1
    Accessible.name: root.text
    Accessible.onPressAction: root.switched(!root.isOn)
    Accessible.onToggleAction: root.switched(!root.isOn)
    Keys.onReturnPressed: event => root.press(event)
    Keys.onEnterPressed: event => root.press(event)
    onToggled: {
        const asked = root.checked;
        root.follow();
        root.switched(asked);
    }
    Component.onCompleted: root.follow()

    PlainLabel {
        id: label
        width: root.width - 34 - 12
        height: parent.height
        text: root.text
        size: 12.5
        wrapMode: Text.Wrap
    }
    indicator: SwitchTrack {
        x: root.width - width
        anchors.verticalCenter: root.verticalCenter
        control: root
    }
}
