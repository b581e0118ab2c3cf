// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property CheatSheetExportSheet sheet: item?.sheet ?? null

    function options(): list<Item> {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof SizeOptionCard).sort((a, b) => a.x - b.x);
    }

    function preview(): SheetPreview {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof SheetPreview)[0];
    }

    function chosen(): list<string> {
        return options().filter(option => option.checked).map(option => option.text);
    }

    function ink(): string {
        // Of the whole window: Qt cuts out the wrong part for what is in a popup.
        const picture = grabImage(item);
        const page = preview();
        const corner = page.mapToItem(item, 0, 0);
        let dots = "";
        for (let y = 0; y < page.height; ++y) {
            for (let x = 0; x < page.width; ++x)
                dots += picture.red(corner.x + x, corner.y + y) < 128 ? "#" : " ";
        }
        return dots;
    }

    function open(): void {
        sheet.open();
        tryVerify(() => sheet.opened);
    }

    function test_offersThreeSizes(): void {
        open();
        compare(options().map(option => option.text), ["Wallet", "A4", "US Letter"]);
        compare(options().map(option => option.symbol), ["credit_card", "description", "description"]);
        compare(options().map(option => option.detail), ["Pocket-sized card, a handful of essentials.", "The full library, one page for the wall.",
                                                         "The full library, US Letter format."]);
        compare(chosen(), ["A4"]);
    }

    function test_speaksCzech(): void {
        Localized.czech = true;
        open();
        verify(hasText("Export taháku"));
        verify(hasText("Vyber formát a ulož nebo rovnou vytiskni."));
        compare(options().map(option => option.text), ["Peněženka", "A4", "US Letter"]);
        verify(named("Zrušit"));
        verify(named("Vytisknout…"));
        verify(named("Uložit PDF…"));
    }

    function test_changesItsLanguageWhileOpen(): void {
        open();
        verify(hasText("Pick a format, then save or print it directly."));
        Localized.czech = true;
        verify(hasText("Vyber formát a ulož nebo rovnou vytiskni."));
        compare(options()[0].detail, "Kapesní karta, nejdůležitějších pár zkratek.");
    }

    function test_aClickChooses(): void {
        open();
        mouseClick(options()[0]);
        compare(chosen(), ["Wallet"]);
        mouseClick(options()[2]);
        compare(chosen(), ["US Letter"]);
    }

    function test_theChosenCardStandsOut(): void {
        open();
        compare(options().map(option => option.background.borderWidth), [1, 2, 1]);
        mouseClick(options()[0]);
        compare(options().map(option => option.background.borderWidth), [2, 1, 1]);
    }

    function test_arrowKeysChooseAndStopAtTheEnds(): void {
        open();
        verify(options()[1].activeFocus);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Right);
        compare(chosen(), ["US Letter"]);
        verify(options()[2].activeFocus);
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Left);
        keyClick(Qt.Key_Left);
        compare(chosen(), ["Wallet"]);
        verify(options()[0].activeFocus);
    }

    function test_tabGoesFromTheSizesToTheButtons(): void {
        open();
        keyClick(Qt.Key_Tab);
        verify(named("Cancel").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(named("Print…").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(named("Save PDF…").activeFocus);
    }

    function test_showsThePageOfTheChosenSize(): void {
        open();
        compare(preview().implicitWidth, 595);
        mouseClick(options()[2]);
        compare(preview().implicitWidth, 612);
        mouseClick(options()[0]);
        compare(Qt.size(preview().implicitWidth, preview().implicitHeight), Qt.size(243, 153));
        verify(named("Preview: Wallet"));
    }

    function test_thePageFitsItsPlaceWithItsProportions(): void {
        open();
        for (const option of options()) {
            mouseClick(option);
            const page = preview();
            verify(page.width <= page.parent.width && page.height <= page.parent.height);
            fuzzyCompare(page.width / page.height, page.implicitWidth / page.implicitHeight, 0.01);
        }
    }

    function test_thePageIsDrawn(): void {
        open();
        waitForRendering(preview());
        const drawn = ink();
        verify(drawn.split("#").length > 100, drawn);
        compare(drawn[0], " ");
    }

    function test_thePageChangesItsLanguageWhileOpen(): void {
        open();
        waitForRendering(preview());
        const english = ink();
        Localized.czech = true;
        waitForRendering(preview());
        verify(ink() !== english);
    }

    function test_cancelCloses(): void {
        open();
        mouseClick(named("Cancel"));
        tryVerify(() => !sheet.visible);
    }

    name: "CheatSheetExportSheet"
    subject: Component {
        Item {
            readonly property alias sheet: subjectSheet

            width: 980
            height: 678

            CheatSheetExportSheet {
                id: subjectSheet
                sheets: Fixture.sheets
            }
        }
    }
}
