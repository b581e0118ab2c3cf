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
        const position = row => row.mapToItem(item, 0, 0);
        return rows().sort((a, b) => position(a).y - position(b).y).map(row => row.title);
    }

    function label(text: string): PlainLabel {
        return findAll(item, candidate => candidate instanceof PlainLabel && candidate.text === text)[0];
    }

    function rings(): list<Item> {
        return findAll(item, candidate => candidate instanceof FocusRing);
    }

    function verifyFocus(name: string): void {
        verify(named(name).activeFocus, name + " has the keyboard");
    }

    function test_textsAreThereInBothLanguages(): void {
        for (const text of ["Keyvora", "Tips for Mac", "Show overlay for Mac", "⌃ ⌥ Space opens the library from anywhere", "Open Library", "Quit"])
            verify(hasText(text), text);
        Localized.czech = true;
        for (const text of ["Keyvora", "Tipy pro Mac", "Zobrazit overlay pro Mac", "⌃ ⌥ mezerník otevře knihovnu odkudkoli", "Otevřít knihovnu", "Ukončit"])
            verify(hasText(text), text);
        compare(rowTitles(), ["Kopírovat", "Vložit", "Vrátit zpět", "Provést znovu"]);
    }

    function test_textsHaveTheirSizes_data(): list<var> {
        return [
            {
                "tag": "Keyvora",
                "size": 13,
                "weight": Theme.strongWeight
            },
            {
                "tag": "Tips for Mac",
                "size": 11,
                "weight": Theme.regularWeight
            },
            {
                "tag": "Copy",
                "size": 12.5,
                "weight": Theme.regularWeight
            },
            {
                "tag": "Show overlay for Mac",
                "size": 12,
                "weight": Theme.mediumWeight
            },
            {
                "tag": "⌃ ⌥ Space opens the library from anywhere",
                "size": 10.5,
                "weight": Theme.regularWeight
            },
            {
                "tag": "Open Library",
                "size": 12,
                "weight": Theme.mediumWeight
            },
            {
                "tag": "Quit",
                "size": 12,
                "weight": Theme.regularWeight
            }
        ];
    }

    function test_textsHaveTheirSizes(data: var): void {
        compare(label(data.tag).size, data.size);
        compare(label(data.tag).font.weight, data.weight);
    }

    function test_contentFollowsTheApplicationInFront(): void {
        compare(rowTitles(), ["Copy", "Paste", "Undo", "Redo"]);
        Fixture.addCustomFor("Mousepad", "Find and Replace", ["⌃", "R"]);
        Fixture.addCustomFor("Mousepad", "Wrap Lines", ["⌃", "⇧", "W"]);
        Fixture.activate("Mousepad");
        verify(hasText("Tips for Mousepad"));
        verify(hasText("Show overlay for Mousepad"));
        compare(rowTitles(), ["Find and Replace", "Wrap Lines"]);
        Fixture.suggest("Wrap Lines");
        compare(rowTitles(), ["Wrap Lines", "Find and Replace"]);
    }

    function test_heightFollowsTheContentAtOnce(): void {
        const four = item.height;
        compare(item.width, 330);
        Fixture.addCustomFor("Mousepad", "Find and Replace", ["⌃", "R"]);
        Fixture.activate("Mousepad");
        compare(item.height, four - 3 * (31 + 10));
    }

    function test_anEmptyListLeavesTwoDividersOneSpacingApart(): void {
        const four = item.height;
        Fixture.emptyContextualModel();
        compare(rowTitles(), []);
        compare(item.height, four - 4 * (31 + 10));
        const isDivider = candidate => candidate instanceof RoundedRectangle && candidate.height === Theme.hairlineWidth;
        const dividers = findAll(item, isDivider).map(divider => divider.y);
        compare(dividers, [54, 54 + Theme.hairlineWidth + 10]);
    }

    function test_theStackIsSpacedEvenly(): void {
        const place = text => label(text).mapToItem(item, 0, 0);
        const overlay = label("Show overlay for Mac");
        const hint = label("⌃ ⌥ Space opens the library from anywhere");
        compare(place(hint.text).y - place(overlay.text).y - overlay.height, 10);
        for (const text of [overlay.text, hint.text])
            compare(place(text).x, 12);
        compare(hint.width, 306);
        const open = named("Open Library");
        compare(open.y - hint.y - hint.height, 10);
        compare(open.y + open.height + 12, item.height);
        compare(place("Quit").x + label("Quit").width, 330 - 12);
        for (const row of rows()) {
            compare(row.mapToItem(item, 0, 0).x, 12 + 8);
            compare(row.width, 306 - 2 * 8);
            compare(row.parent.height, row.height + 2 * 5);
        }
    }

    function test_longTextsStayInside(): void {
        const name = "An Application With a Very Long Name Indeed, Longer Than the Whole of the Panel";
        Fixture.addCustomFor(name, "A command whose title is so long that no line of the panel could hold it", ["⌃", "⇧", "⌥", "Page Down", "→", "⌃", "Backspace", "→", "Insert"]);
        Fixture.activate(name);
        const labels = findAll(item, candidate => candidate instanceof PlainLabel && candidate.text.length > 60);
        compare(labels.length, 3);
        for (const label of labels) {
            verify(label.truncated, label.text);
            compare(label.lineCount, 1);
            verify(label.mapToItem(item, 0, 0).x + label.width <= 330 - 12, label.text);
        }
    }

    function test_textOfAnotherProgramIsNoMarkup(): void {
        Fixture.addCustomFor("<b>App</b>", "<i>Title</i>", ["⌘", "E"]);
        Fixture.activate("<b>App</b>");
        for (const text of ["Tips for <b>App</b>", "Show overlay for <b>App</b>", "<i>Title</i>"])
            compare(label(text).textFormat, Text.PlainText);
    }

    function test_theOverlayButtonLeavesThePanelOpen(): void {
        dismissals.clear();
        mouseClick(named("Show overlay for Mac"));
        compare(Fixture.overlayToggles, 1);
        mouseClick(named("Show overlay for Mac"));
        compare(Fixture.overlayToggles, 2);
        compare(dismissals.count, 0);
        compare(Fixture.libraryOpenings, 0);
    }

    function test_openLibraryClosesThePanelThenShowsTheMainWindow(): void {
        const steps = [];
        const noteDismissal = () => steps.push("closed");
        const noteCount = () => steps.push("library " + Fixture.libraryOpenings);
        Fixture.panelController.dismissed.connect(noteDismissal);
        Fixture.counted.connect(noteCount);
        mouseClick(named("Open Library"));
        Fixture.counted.disconnect(noteCount);
        Fixture.panelController.dismissed.disconnect(noteDismissal);
        compare(steps, ["closed", "library 1"]);
    }

    function test_quitEndsTheProgram(): void {
        mouseClick(named("Quit"));
        compare(Fixture.quits, 1);
    }

    function test_escapeCloses(): void {
        dismissals.clear();
        item.forceActiveFocus();
        keyClick(Qt.Key_Escape);
        compare(dismissals.count, 1);
        compare(Fixture.libraryOpenings, 0);
    }

    function test_keysWalkThroughTheButtons_data(): list<var> {
        return [
            {
                "tag": "Tab",
                "forward": Qt.Key_Tab,
                "backward": Qt.Key_Backtab
            },
            {
                "tag": "arrows",
                "forward": Qt.Key_Down,
                "backward": Qt.Key_Up
            }
        ];
    }

    function test_keysWalkThroughTheButtons(data: var): void {
        item.forceActiveFocus();
        verifyFocus("Open Library");
        for (const name of ["Quit", "Show overlay for Mac", "Open Library"]) {
            keyClick(data.forward);
            verifyFocus(name);
        }
        for (const name of ["Show overlay for Mac", "Quit", "Open Library"]) {
            keyClick(data.backward);
            verifyFocus(name);
        }
    }

    function test_keysPress(): void {
        item.forceActiveFocus();
        keyClick(Qt.Key_Space);
        compare(Fixture.libraryOpenings, 1);
        keyClick(Qt.Key_Return);
        compare(Fixture.libraryOpenings, 2);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Space);
        compare(Fixture.overlayToggles, 1);
        keyClick(Qt.Key_Enter);
        compare(Fixture.overlayToggles, 2);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Return);
        compare(Fixture.quits, 1);
    }

    function test_theFocusShowsWhileTheKeyboardIsUsed(): void {
        item.forceActiveFocus();
        compare(rings().length, 0);
        Theme.showsFocus = true;
        compare(rings().length, 1);
        compare(rings()[0].control, named("Open Library"));
    }

    function test_openedAgainItStartsAfresh(): void {
        item.forceActiveFocus();
        keyClick(Qt.Key_Down);
        verifyFocus("Quit");
        Theme.showsFocus = true;
        Fixture.presentPanel();
        verifyFocus("Open Library");
        compare(rings().length, 0);
    }

    function test_screenReadersAreToldEverything(): void {
        compare(named("Keyvora").Accessible.role, Accessible.Heading);
        compare(named("Tips for Mac").Accessible.role, Accessible.StaticText);
        compare(named("Shortcuts").Accessible.role, Accessible.List);
        compare(named("Copy").Accessible.role, Accessible.ListItem);
        compare(named("Copy").Accessible.description, "Command C");
        Localized.czech = true;
        verify(named("Zkratky"));
        verify(named("Zobrazit overlay pro Mac"));
    }

    function test_screenReadersPressTheButtons(): void {
        named("Show overlay for Mac").Accessible.pressAction();
        compare(Fixture.overlayToggles, 1);
        named("Quit").Accessible.pressAction();
        compare(Fixture.quits, 1);
    }

    SignalSpy {
        id: dismissals
        target: Fixture.panelController
        signalName: "dismissed"
    }

    name: "MenuBarView"
    subject: Component {
        MenuBarView {
            appModel: Fixture.appModel
            controller: Fixture.panelController
        }
    }
}
