// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    // Made with what the window gives to its content.
    function present(): void {
        item.present({
            "appModel": Fixture.appModel,
            "sections": Fixture.sections,
            "learning": Fixture.learning,
            "sheets": Fixture.sheets,
            "settings": Fixture.settings,
            "customs": Fixture.customs,
            "appMenu": Fixture.appMenu,
            "trust": Fixture.trustController,
            "updates": Fixture.updates,
            "keyReader": Fixture.keyReader,
            "isFirstTime": false
        });
    }

    function grounds(): list<Item> {
        return findAll(item, candidate => candidate instanceof MenuBarGround || candidate instanceof SidebarGround);
    }

    function places(items: list<Item>): string {
        return JSON.stringify(items.map(ground => item.mapFromItem(ground, 0, 0, ground.width, ground.height)));
    }

    function test_theWindowIsNeverTooSmallForItsContent(): void {
        compare(item.minimumWidth, 980);
        compare(item.minimumHeight, 678);
    }

    // Else something would jump.
    function test_theContentStandsWhereItsGroundStood(): void {
        compare(item.content, null);
        const before = places(grounds());
        compare(grounds().length, 2);
        present();
        verify(item.content instanceof ContentView);
        compare(grounds().length, 2);
        compare(places(grounds()), before);
    }

    function test_theContentGetsTheKeyboard(): void {
        present();
        verify(item.content.activeFocus);
        keyClick(Qt.Key_End);
        compare(item.content.sections.pageTitle, "Pro Tools");
    }

    function test_theContentIsAsLargeAsTheWindow(): void {
        present();
        item.width = 1200;
        item.height = 800;
        compare(item.content.width, 1200);
        compare(item.content.height, 800);
    }

    subject: Component {
        WindowGround {
            width: root.width
            height: root.height
        }
    }
}
