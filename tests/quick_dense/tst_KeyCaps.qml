// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora

// On a screen where a unit is one and a quarter pixels.
TestCase {
    id: root

    // Caps end at whole pixels, which may lie beyond the end of the row.
    function test_capsAreWholeWhereAUnitIsNoWholePixel(): void {
        compare(Screen.devicePixelRatio, 1.25);
        const picture = grabImage(root);
        const red = Qt.rgba(1, 0, 0, 1);
        // 28 units wide and 30 high, from 10 on; the second cap 34 units further. Halves are rounded up.
        for (const left of [13, 56]) {
            compare(picture.pixel(left, 30), red, "left edge of the cap at " + left);
            compare(picture.pixel(left + 34, 30), red, "right edge of the cap at " + left);
            compare(picture.pixel(left + 17, 13), red, "upper edge of the cap at " + left);
            compare(picture.pixel(left + 17, 50), red, "lower edge of the cap at " + left);
        }
    }

    name: "KeyCapsOnADenseScreen"
    width: 200
    height: 100
    visible: true
    when: windowShown

    KeyCaps {
        x: 10
        y: 10
        keys: ["C", "V"]
        outline: "red"
    }
}
