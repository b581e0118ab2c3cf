// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function items(): list<Item> {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof AppMenuItem);
    }

    function test_theLabelTellsHowFarAnImportIs_data(): var {
        return [
            {
                "tag": "idle",
                "state": {
                    "isImporting": false
                },
                "english": "Import from Menu",
                "czech": "Import z menu"
            },
            {
                "tag": "one application",
                "state": {
                    "isImporting": true
                },
                "english": "Importing…",
                "czech": "Importuji…"
            },
            {
                "tag": "all applications",
                "state": {
                    "isImporting": true,
                    "current": 3,
                    "total": 12
                },
                "english": "Importing… (3/12)",
                "czech": "Importuji… (3/12)"
            }
        ];
    }

    function test_theLabelTellsHowFarAnImportIs(data: var): void {
        const menu = createTemporaryObject(subject, root, data.state);
        compare(menu.label, data.english);
        compare(menu.Accessible.name, data.english);
        Localized.czech = true;
        compare(menu.label, data.czech);
        compare(menu.Accessible.name, data.czech);
        const label = findAll(menu, candidate => candidate instanceof PlainLabel)[0];
        verify(!label.truncated);
        tryVerify(() => label.mapToItem(menu, 0, 0).x + label.width <= menu.width - menu.rightPadding);
    }

    function test_theCountDoesNotMoveTheBar(): void {
        const idleWidth = item.width;
        item.isImporting = true;
        item.total = 12;
        item.current = 1;
        const width = item.width;
        verify(width >= idleWidth);
        for (let current = 2; current <= 12; ++current) {
            item.current = current;
            compare(item.width, width);
        }
    }

    function test_nothingIsStartedWhileAnImportRuns(): void {
        mouseClick(item);
        tryVerify(() => items().length === 2);
        verify(items().every(entry => entry.enabled));
        item.isImporting = true;
        verify(items().every(entry => !entry.enabled));
        item.isImporting = false;
        verify(items().every(entry => entry.enabled));
        keyClick(Qt.Key_Escape);
    }

    function test_anItemStartsTheImport_data(): var {
        return [
            {
                "tag": "application in front",
                "entry": 0,
                "busy": "Importing…",
                "message": "Imported 1 shortcuts from Editor."
            },
            {
                "tag": "all applications",
                "entry": 1,
                "busy": "Importing… (1/1)",
                "message": "Imported 1 shortcuts from 1 apps."
            }
        ];
    }

    function test_anItemStartsTheImport(data: var): void {
        Fixture.activate("Editor");
        Fixture.holdMenu("Frobnicate", "f");
        mouseClick(item);
        tryVerify(() => items().length === 2);
        mouseClick(items()[data.entry]);
        tryCompare(item, "label", data.busy);
        verify(Fixture.appModel.isImporting);
        Fixture.answerMenu();
        tryCompare(Fixture.appModel, "importMessage", data.message);
        compare(item.label, "Import from Menu");
        verify(Fixture.titlesShown().includes("Frobnicate"));
    }

    function test_aSecondClickClosesTheMenu(): void {
        mouseClick(item);
        tryVerify(() => items().length === 2 && items()[0].visible);
        mouseClick(item);
        tryVerify(() => items().every(entry => !entry.visible));
        mouseClick(item);
        tryVerify(() => items()[0].visible);
        keyClick(Qt.Key_Escape);
    }

    function test_aLongNameIsElidedInTheMenu(): void {
        Fixture.activate("An Application With a Very Long Name Indeed, Longer Than Any Menu Should Be, Really");
        mouseClick(item);
        tryVerify(() => items().length === 2);
        const label = findAll(items()[0], candidate => candidate instanceof PlainLabel)[0];
        verify(label.truncated);
        verify(items()[0].width <= 420);
        compare(items()[0].Accessible.name, "Import from Active App “" + Fixture.appModel.activeApp + "”");
        keyClick(Qt.Key_Escape);
    }

    name: "ImportMenu"
    subject: Component {
        ImportMenu {
            appModel: Fixture.appModel
        }
    }
}
