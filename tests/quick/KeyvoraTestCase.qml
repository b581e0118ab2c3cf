// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import QtTest
import Keyvora
import KeyvoraTest

// A test of a screen in a window of its own, over a fresh program in English. Warnings fail it.
TestCase {
    id: root

    // The row of the sidebar that belongs to the screen.
    property int sidebarRow: 0
    property Component subject
    property Item item

    // What is drawn under an item, the item included, that fits.
    function findAll(from: Item, fits: var): list<Item> {
        let found = [];
        if (fits(from))
            found.push(from);
        for (let i = 0; i < from.children.length; ++i) {
            if (from.children[i].visible)
                found = found.concat(root.findAll(from.children[i], fits));
        }
        return found;
    }

    // The one visible item that a screen reader knows by this name.
    function named(name: string): Item {
        root.settle();
        const isNamed = candidate => {
            const accessible = candidate.Accessible;
            return accessible.ignored === false && (accessible.name === name || (candidate instanceof T.AbstractButton && candidate.text === name));
        };
        const found = root.findAll(root.item.Window.window.contentItem, isNamed);
        compare(found.length, 1, "items named " + name);
        return found[0];
    }

    function hasText(text: string): bool {
        root.settle();
        return root.findAll(root.item.Window.window.contentItem, candidate => candidate.text === text).length > 0;
    }

    // Lets views lay out what their models have told them.
    function settle(): void {
        for (const view of root.findAll(root.item, candidate => candidate instanceof Flickable)) {
            if (isPolishScheduled(view))
                waitForItemPolished(view);
        }
    }

    function cards(): list<Item> {
        root.settle();
        return root.findAll(root.item, candidate => candidate instanceof ShortcutCard);
    }

    function card(title: string): Item {
        return root.cards().find(candidate => candidate.title === title) ?? null;
    }

    // The titles of the cards in the order in which they are read.
    function cardTitles(): list<string> {
        const position = card => card.mapToItem(root.item, 0, 0);
        return root.cards().sort((a, b) => position(a).y - position(b).y || position(a).x - position(b).x).map(card => card.title);
    }

    function init(): void {
        failOnWarning(/.?/);
        Fixture.reset();
        Fixture.sections.select(root.sidebarRow);
        Theme.showsFocus = false;
        root.item = createTemporaryObject(root.subject, root);
        verify(root.item !== null);
        waitForRendering(root.item);
    }

    width: 980
    height: 678
    visible: true
    when: windowShown
}
