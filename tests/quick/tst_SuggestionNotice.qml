// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function present(menuTitle: string): void {
        Fixture.suggest(menuTitle);
        Fixture.presentNotice();
    }

    function leave(): void {
        mouseMove(root, 900, 600);
        tryVerify(() => item.isCounting);
    }

    function enter(): void {
        mouseMove(item, item.width / 2, item.height / 2);
        tryVerify(() => !item.isCounting);
    }

    function test_itSaysWhatWouldHaveBeenFaster(): void {
        present("Redo");
        verify(hasText("Redo"));
        verify(hasText("You used “Redo” with the mouse. Try the faster keyboard shortcut next time."));
        compare(Array.from(findAll(item, candidate => candidate instanceof KeyCaps)[0].keys), ["⇧", "⌘", "Z"]);
        compare(item.width, 340);
        compare(item.Accessible.role, Accessible.AlertMessage);
        compare(item.Accessible.name, "Redo: Shift Command Z");
        compare(item.Accessible.description, Fixture.appModel.suggestionReason);
    }

    function test_itSpeaksCzech(): void {
        Localized.czech = true;
        present("Vložit");
        verify(hasText("Položku „Vložit“ jste použili myší. Příště to zkuste rychleji klávesami."));
    }

    function test_aNewSuggestionTakesThePlaceOfTheOldOne(): void {
        present("Redo");
        present("Undo");
        verify(!hasText("Redo"));
        verify(hasText("Undo"));
        compare(findAll(item, candidate => candidate instanceof KeyCaps)[0].keys.length, 2);
    }

    function test_itGoesByItself(): void {
        leave();
        item.duration = 1;
        dismissals.clear();
        present("Redo");
        tryCompare(dismissals, "count", 1);
        compare(Fixture.libraryOpenings, 0);
    }

    function test_itStaysSixSeconds(): void {
        compare(item.duration, 6000);
    }

    function test_itWaitsForThePointerToLeave(): void {
        leave();
        present("Redo");
        enter();
        item.duration = 1;
        dismissals.clear();
        Fixture.presentNotice();
        // Time enough for the end of a countdown that should not run.
        let isLater = false;
        later.triggered.connect(() => isLater = true);
        later.start();
        tryVerify(() => isLater);
        compare(dismissals.count, 0);
        leave();
        tryCompare(dismissals, "count", 1);
    }

    function test_aClickLeadsToTheShortcut(): void {
        present("Redo");
        dismissals.clear();
        mouseClick(item);
        compare(dismissals.count, 1);
        compare(Fixture.libraryOpenings, 1);
        compare(revelations.count, 1);
        compare(revelations.signalArguments[0][0], Fixture.appModel.suggestionId);
        revelations.clear();
    }

    function test_longTextsStayInside(): void {
        const title = "A command with a title that is as long as only programs make them, with many words and no end in sight, and still going on, and on, and on, and on, past every border";
        Fixture.addCustom(title, ["⌃", "⇧", "⌥", "⌘", "Page Down", "→", "⌃", "Backspace"]);
        present(title);
        const labels = findAll(item, candidate => candidate instanceof PlainLabel && candidate.text.length > 40);
        compare(labels.length, 2);
        for (const label of labels) {
            verify(label.truncated);
            verify(label.width >= 80);
            compare(label.textFormat, Text.PlainText);
        }
        const reason = labels.find(label => label.text === Fixture.appModel.suggestionReason);
        compare(reason.lineCount, 3);
        verify(reason.mapToItem(item, 0, 0).y + reason.height <= item.height - 10);
    }

    Timer {
        id: later
        interval: 100
    }
    SignalSpy {
        id: dismissals
        target: Fixture.noticeController
        signalName: "dismissed"
    }
    SignalSpy {
        id: revelations
        target: Fixture.appModel
        signalName: "shortcutRevealed"
    }

    name: "SuggestionNotice"
    subject: Component {
        SuggestionNotice {
            appModel: Fixture.appModel
            controller: Fixture.noticeController
        }
    }
}
