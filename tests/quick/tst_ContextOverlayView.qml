// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function rows(): list<Item> {
        return findAll(item, candidate => candidate instanceof ShortcutRow);
    }

    function rowTitles(): list<string> {
        return rows().sort((a, b) => a.y - b.y).map(row => row.title);
    }

    function test_textsAreThereInBothLanguages(): void {
        for (const text of ["Mac", "Best shortcuts right now", "Open Full Library"])
            verify(hasText(text), text);
        verify(named("Close"));
        Localized.czech = true;
        for (const text of ["Mac", "Nejlepší zkratky právě teď", "Otevřít celou knihovnu"])
            verify(hasText(text), text);
        verify(named("Zavřít"));
    }

    function test_contentFollowsTheApplicationInFront(): void {
        compare(rowTitles(), ["Copy", "Paste", "Undo", "Redo"]);
        Fixture.addCustomFor("Mousepad", "Find and Replace", ["⌃", "R"]);
        Fixture.addCustomFor("Mousepad", "Wrap Lines", ["⌃", "⇧", "W"]);
        Fixture.activate("Mousepad");
        verify(hasText("Mousepad"));
        compare(rowTitles(), ["Find and Replace", "Wrap Lines"]);
        Fixture.suggest("Wrap Lines");
        compare(rowTitles(), ["Wrap Lines", "Find and Replace"]);
    }

    function test_rowsFollowTheLanguage(): void {
        Localized.czech = true;
        compare(rowTitles(), ["Kopírovat", "Vložit", "Vrátit zpět", "Provést znovu"]);
        compare(rows()[0].Accessible.description, "Command C");
    }

    function test_heightFollowsTheContentAtOnce(): void {
        const four = item.height;
        compare(item.width, 380);
        Fixture.addCustomFor("Mousepad", "Find and Replace", ["⌃", "R"]);
        Fixture.activate("Mousepad");
        compare(item.height, four - 3 * (21 + 14));
    }

    function test_anEmptyListShowsTheHeaderTheDividerAndTheButtonOnly(): void {
        const four = item.height;
        Fixture.emptyContextualModel();
        compare(rowTitles(), []);
        compare(item.height, four - 4 * (21 + 14));
        verify(named("Close"));
        const button = named("Open Full Library");
        compare(button.mapToItem(item, 0, 0).y + button.height + 18, item.height);
    }

    function test_longTextsStayInside(): void {
        const name = "An Application With a Very Long Name Indeed, Longer Than the Overlay";
        Fixture.addCustomFor(name, "A command whose title is so long that no line of the overlay could hold it", ["⌃", "⇧", "⌥", "Page Down", "→", "⌃", "Backspace", "→", "Insert"]);
        Fixture.activate(name);
        const labels = findAll(item, candidate => candidate instanceof PlainLabel && candidate.text.length > 40);
        compare(labels.length, 2);
        for (const label of labels) {
            verify(label.truncated, label.text);
            verify(label.width >= 80, label.text);
        }
        const row = rows()[0];
        verify(row.children[1].mapToItem(item, 0, 0).x + row.children[1].width <= 380 - 18);
        verify(row.children[0].width + row.children[1].width < row.width);
    }

    function test_textOfAnotherProgramIsNoMarkup(): void {
        Fixture.addCustomFor("<b>App</b>", "<i>Title</i>", ["⌘", "E"]);
        Fixture.activate("<b>App</b>");
        for (const text of ["<b>App</b>", "<i>Title</i>"]) {
            const label = findAll(item, candidate => candidate.text === text)[0];
            compare(label.textFormat, Text.PlainText);
        }
    }

    function test_closeTogglesTheOverlay(): void {
        mouseClick(named("Close"));
        compare(Fixture.overlayToggles, 1);
        compare(Fixture.libraryOpenings, 0);
    }

    function test_openFullLibraryHidesTheOverlayThenShowsTheMainWindow(): void {
        const steps = [];
        const note = () => steps.push([Fixture.overlayToggles, Fixture.libraryOpenings]);
        Fixture.counted.connect(note);
        mouseClick(named("Open Full Library"));
        Fixture.counted.disconnect(note);
        compare(steps, [[1, 0], [1, 1]]);
    }

    function test_cornersAreRoundOnlyWhereTheyMayBe(): void {
        compare(item.cornerRadius, 0);
        item.isRounded = true;
        compare(item.cornerRadius, 18);
    }

    function test_rowsTellTheirKeys(): void {
        compare(rows()[0].Accessible.role, Accessible.ListItem);
        compare(named("Copy").Accessible.description, "Command C");
    }

    name: "ContextOverlayView"
    subject: Component {
        ContextOverlayView {
            appModel: Fixture.appModel
            controller: Fixture.overlayController
        }
    }
}
