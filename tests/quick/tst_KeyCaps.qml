// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function labels(): list<string> {
        return Array.from(item.labels).map(label => label.length > 0 ? label : "step");
    }

    function test_theSpaceBarFollowsTheLanguage(): void {
        item.keys = ["⌃", "Space", "Tab"];
        compare(labels(), ["⌃", "Space", "Tab"]);
        Localized.czech = true;
        compare(labels(), ["⌃", "Mezerník", "Tab"]);
    }

    function test_anArrowBetweenStepsIsNoKey(): void {
        item.keys = ["⌘", "K", "→", "⌘", "C"];
        compare(labels(), ["⌘", "K", "step", "⌘", "C"]);
    }

    function test_theArrowKeyIsAKey(): void {
        item.keys = ["⌥", "→"];
        compare(labels(), ["⌥", "→"]);
    }

    function test_capsHaveTheirSizes(): void {
        item.keys = ["C"];
        compare(item.width, 28);
        compare(item.height, 30);
        item.keys = ["C", "V"];
        compare(item.width, 28 + 6 + 28);
        item.compact = true;
        compare(item.width, 20 + 4 + 20);
        compare(item.height, 21);
        item.keys = [];
        compare(item.width, 0);
    }

    function test_capsAreSmallWhereOrdinaryOnesAreTooWide(): void {
        item.keys = ["C", "V"];
        item.availableWidth = 62;
        compare(item.width, 28 + 6 + 28);
        item.availableWidth = 61;
        compare(item.width, 20 + 4 + 20);
        compare(item.height, 21);
        item.availableWidth = 10;
        compare(item.width, 20 + 4 + 20);
        item.keys = [];
        compare(item.width, 0);
        item.availableWidth = 100;
        item.keys = ["C"];
        compare(item.width, 28);
    }

    // The cap is 28 points wide, its outline one.
    function test_capsAreDrawnWhereTheyAre(): void {
        item.keys = ["C", "V"];
        item.outline = "red";
        item.fill = "blue";
        item.ink = "blue";
        waitForRendering(item);
        const picture = grabImage(item);
        for (const left of [0, 34]) {
            compare(picture.pixel(left, 15), Qt.rgba(1, 0, 0, 1));
            compare(picture.pixel(left + 1, 15), Qt.rgba(0, 0, 1, 1));
            compare(picture.pixel(left + 27, 15), Qt.rgba(1, 0, 0, 1));
        }
        compare(picture.pixel(31, 15).b, picture.pixel(31, 1).b);
        item.ink = "white";
        waitForRendering(item);
        const withLabel = grabImage(item);
        let painted = 0;
        for (let x = 4; x < 24; ++x) {
            for (let y = 6; y < 24; ++y)
                painted += withLabel.pixel(x, y).g > 0.5 ? 1 : 0;
        }
        verify(painted > 10, painted + " pixels of the letter");
    }

    name: "KeyCaps"
    subject: Component {
        KeyCaps {
            keys: []
        }
    }
}
