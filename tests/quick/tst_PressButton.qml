// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function test_returnEnterAndSpacePress_data(): var {
        return [
            {
                "tag": "Return",
                "key": Qt.Key_Return
            },
            {
                "tag": "Enter",
                "key": Qt.Key_Enter
            },
            {
                "tag": "Space",
                "key": Qt.Key_Space
            }
        ];
    }

    function test_returnEnterAndSpacePress(data: var): void {
        item.forceActiveFocus();
        keyClick(data.key);
        compare(clicks.count, 1);
    }

    function test_aHeldKeyPressesOnce(): void {
        item.press({
            "isAutoRepeat": true
        });
        compare(clicks.count, 0);
        item.press({
            "isAutoRepeat": false
        });
        compare(clicks.count, 1);
    }

    function test_anAmpersandMakesNoKey(): void {
        compare(item.Accessible.name, "R&D");
        verify(hasText("R&D"));
        keyClick(Qt.Key_D, Qt.AltModifier);
        compare(clicks.count, 0);
    }

    function cleanup(): void {
        clicks.clear();
    }

    SignalSpy {
        id: clicks
        target: root.item
        signalName: "clicked"
    }

    name: "PressButton"
    subject: Component {
        GlassButton {
            label: "R&D"
        }
    }
}
