// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function test_listsTheEssentials(): void {
        const titles = cardTitles();
        compare(titles.length, 24);
        compare(titles.slice(0, 5), ["Copy", "Paste", "Undo", "Save", "Emoji & Symbols"]);
        compare(titles[23], "Minimize All Windows");
    }

    function test_ownShortcutsAreNotAmongThem(): void {
        Fixture.addCustom("Own", ["⌘", "J"]);
        compare(cards().length, 24);
        compare(card("Own"), null);
    }

    function test_speaksBothLanguages(): void {
        verify(hasText("The most important shortcuts in one place"));
        verify(hasText("A digital cheat sheet — clear, always at hand, ready to practice."));
        Localized.czech = true;
        verify(hasText("Nejdůležitější zkratky na jednom místě"));
        verify(hasText("Digitální verze samolepky – přehledná, vždy dostupná a připravená k procvičení."));
        compare(cardTitles().slice(0, 3), ["Kopírovat", "Vložit", "Vrátit zpět"]);
    }

    function test_knowsFavourites(): void {
        verify(card("Copy").isFavorite);
        verify(!card("Undo").isFavorite);
        card("Undo").favoriteToggled("undo");
        verify(card("Undo").isFavorite);
    }

    function test_offersTheExport(): void {
        const asked = createTemporaryObject(requests, root, {
            "target": item,
            "signalName": "exportRequested"
        });
        mouseClick(named("Export Cheat Sheet…"));
        compare(asked.count, 1);
    }

    name: "StickerView"
    subject: Component {
        StickerView {
            width: 750
            height: 570
            appModel: Fixture.appModel
            sheets: Fixture.sheets
        }
    }

    Component {
        id: requests

        SignalSpy {}
    }
}
