// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function labels(): list<string> {
        return findAll(item, candidate => candidate instanceof KeyCap).map(cap => cap.isStep ? "step" : findAll(cap, part => part.text !== undefined)[0].text);
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
        const cap = findAll(item, candidate => candidate instanceof KeyCap)[0];
        compare(cap.width, 28);
        compare(cap.height, 30);
        item.compact = true;
        compare(cap.width, 20);
        compare(cap.height, 21);
    }

    name: "KeyCaps"
    subject: Component {
        KeyCaps {
            keys: []
        }
    }
}
