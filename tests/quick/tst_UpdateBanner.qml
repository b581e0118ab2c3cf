// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property string page: "https://example.org/get"

    function publish(version: string, url: string, notes: string): void {
        Fixture.publish(JSON.stringify({
            "version": version,
            "url": url,
            "notes": notes
        }));
        tryCompare(Fixture.updates, "shownVersion", version.substring(0, 39) + (version.length > 40 ? "…" : version.substring(39)));
    }

    // The same for news, once it shows.
    function announce(version: string, url: string, notes: string): void {
        publish(version, url, notes);
        verify(banner() !== null);
        waitForRendering(banner());
    }

    function banner(): Item {
        return findAll(item, candidate => candidate instanceof UpdateBanner)[0] ?? null;
    }

    function library(): Item {
        return findAll(item, candidate => candidate instanceof LibraryView)[0];
    }

    function topBar(): Item {
        return findAll(item, candidate => candidate instanceof TopBar)[0];
    }

    function button(text: string): Item {
        return findAll(banner(), candidate => candidate instanceof PressButton && candidate.label === text)[0] ?? null;
    }

    function labels(): list<Item> {
        return findAll(banner(), candidate => candidate instanceof PlainLabel);
    }

    function test_nothingIsToldOfAVersionThatIsNoNews(): void {
        const before = library().y;
        publish("1.0", page, "Old news.");
        verify(banner() === null);
        compare(library().y, before);
    }

    function test_aNewerVersionIsTold(): void {
        announce("1.10", page, "");
        const strip = banner();
        verify(hasText("New version 1.10 available"));
        verify(hasText("You have version 1.0. Download the new one and drag it into Applications."));
        verify(button("Skip") !== null);
        verify(button("Download") !== null);
        compare(strip.Accessible.role, Accessible.AlertMessage);
        compare(strip.Accessible.name, "New version 1.10 available");
        verify(named("You have version 1.0. Download the new one and drag it into Applications.") !== null);
        Localized.czech = true;
        verify(hasText("Dostupná nová verze 1.10"));
        verify(hasText("Ty máš verzi 1.0. Stáhni novou a přetáhni do Applications."));
        verify(button("Přeskočit") !== null);
        verify(button("Stáhnout") !== null);
        compare(strip.Accessible.name, "Dostupná nová verze 1.10");
    }

    function test_itLooksAsAnAnnouncementDoes(): void {
        announce("1.10", page, "");
        const symbol = findAll(banner(), candidate => candidate instanceof Symbol)[0];
        compare([symbol.name, symbol.size], ["arrow_circle_down-fill", 16]);
        const [title, line] = labels();
        compare([title.size, title.font.weight], [13, Theme.strongWeight]);
        compare(line.size, 11.5);
        compare(title.mapToItem(symbol, 0, 0).x - symbol.width, 14);
        verify(button("Skip") instanceof PlainButton);
        compare(button("Skip").size, 11.5);
        verify(button("Download") instanceof ProminentButton);
    }

    function test_theContentBelowMovesDownAndBack(): void {
        const before = library().y;
        const bottom = library().y + library().height;
        mouseClick(named("Search"));
        const search = named("Search");
        announce("1.10", page, "");
        const strip = banner();
        const corner = strip.mapToItem(library().parent, 0, 0);
        compare(corner.x, topBar().x);
        compare(strip.width, topBar().width);
        verify(corner.y >= topBar().y + topBar().height);
        tryVerify(() => library().y >= corner.y + strip.height);
        compare(library().y + library().height, bottom);
        verify(search.activeFocus);
        mouseClick(button("Skip"));
        verify(banner() === null);
        tryVerify(() => library().y === before);
        verify(cards()[0].activeFocus);
    }

    function test_itStaysOnEverySection(): void {
        announce("1.10", page, "");
        for (const row of ["Practice", "First Aid", "Favorites"]) {
            mouseClick(findAll(item, candidate => candidate instanceof SidebarRow && candidate.label === row)[0]);
            verify(banner() !== null);
        }
    }

    function test_skippingKeepsTheVersionAway(): void {
        announce("1.10", page, "");
        mouseClick(button("Skip"));
        compare(Fixture.dismissedVersion(), "1.10");
        verify(banner() === null);
        publish("1.10", page, "Again.");
        tryCompare(Fixture.updates, "shownNotes", "Again.");
        verify(banner() === null);
        announce("1.10.1", page, "");
    }

    function test_downloadingOpensThePageAndStays(): void {
        announce("1.10", page, "");
        mouseClick(button("Download"));
        compare(Fixture.openedPage, page);
        verify(banner() !== null);
        compare(Fixture.dismissedVersion(), "");
    }

    function test_thereIsNothingToDownloadWithoutAPageOfTheWeb(): void {
        announce("1.10", "file:///etc/passwd", "");
        verify(button("Skip") !== null);
        verify(button("Download") === null);
    }

    function test_theKeyboardIsEnough(): void {
        announce("1.10", page, "");
        Theme.showsFocus = true;
        keyClick(Qt.Key_F, Qt.ControlModifier);
        keyClick(Qt.Key_Tab);
        verify(button("Skip").activeFocus);
        compare(findAll(banner(), candidate => candidate instanceof FocusRing && candidate.visible).length, 1);
        keyClick(Qt.Key_Tab);
        verify(button("Download").activeFocus);
        keyClick(Qt.Key_Return);
        compare(Fixture.openedPage, page);
        keyClick(Qt.Key_Backtab);
        keyClick(Qt.Key_Space);
        verify(banner() === null);
        verify(cards()[0].activeFocus);
    }

    function test_skippingOnAScreenOfItsOwnKeepsTheKeyboardThere(): void {
        mouseClick(named("First Aid"));
        announce("1.10", page, "");
        Theme.showsFocus = true;
        button("Skip").forceActiveFocus();
        keyClick(Qt.Key_Return);
        verify(card("Force Quit").activeFocus);
    }

    function test_aClickOnSkipTakesNobodyIntoAControl(): void {
        mouseClick(named("Practice"));
        announce("1.10", page, "");
        mouseClick(button("Skip"));
        verify(banner() === null);
        const field = findAll(item, candidate => candidate instanceof KeyCaptureView)[0];
        verify(!field.capturing);
        verify(!Theme.showsFocus);
        keyClick(Qt.Key_Tab);
        verify(field.capturing);
    }

    function test_notesAreToldAsTheyAre(): void {
        announce("1.10", page, "Nové: <b>rychlejší</b> &amp; lepší.");
        verify(hasText("Nové: <b>rychlejší</b> &amp; lepší."));
        for (const label of labels())
            compare(label.textFormat, Text.PlainText);
    }

    function test_longTextsStayInside_data(): var {
        return [
            {
                "tag": "words",
                "notes": "Many words that go on and on. ".repeat(100)
            },
            {
                "tag": "one word",
                "notes": "w".repeat(5000)
            }
        ];
    }

    function test_longTextsStayInside(data: var): void {
        announce("1." + "9".repeat(3000), page, data.notes);
        Localized.czech = true;
        const strip = banner();
        verify(labels().some(label => label.lineCount === 3));
        // Where the Czech button leaves less room, the text is laid out again.
        tryVerify(() => strip.height >= 3 * 13 + 16 + 20);
        for (const label of labels()) {
            verify(label.lineCount <= 3);
            const place = label.mapToItem(strip, 0, 0);
            verify(place.x >= 0 && place.x + label.width <= strip.width, label.text);
            verify(place.y >= 0 && place.y + label.height <= strip.height, label.text);
        }
        const first = button("Přeskočit").mapToItem(strip, 0, 0).x;
        for (const label of labels().slice(0, 2))
            verify(label.mapToItem(strip, label.width, 0).x <= first);
        tryVerify(() => library().y >= strip.y + strip.height);
        verify(library().height > 250);
    }

    name: "UpdateBanner"
    subject: Component {
        ContentView {
            width: root.width
            height: root.height
            appModel: Fixture.appModel
            sections: Fixture.sections
            learning: Fixture.learning
            sheets: Fixture.sheets
            settings: Fixture.settings
            customs: Fixture.customs
            appMenu: Fixture.appMenu
            trust: Fixture.trustController
            updates: Fixture.updates
            keyReader: Fixture.keyReader
            isFirstTime: false
        }
    }
}
