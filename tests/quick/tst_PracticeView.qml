// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property string wrongText: "Try to remember the correct combination"

    function field(): Item {
        return findAll(item, candidate => candidate instanceof KeyCaptureView)[0];
    }

    function begin(): void {
        mouseClick(field());
        tryVerify(() => field().capturing);
    }

    // The first task is Copy; the fallback for unknown layouts knows letters alone.
    function answerCopy(): void {
        keyClick(Qt.Key_C, Qt.MetaModifier);
    }

    function answerWrong(): void {
        keyClick(Qt.Key_F9);
    }

    function test_asksForAShortcut(): void {
        verify(hasText("Task 1"));
        verify(hasText("0 points"));
        verify(hasText("Press the matching key combination"));
        verify(hasText("Copy"));
        verify(hasText("Click here and press the shortcut"));
        compare(findAll(item, candidate => candidate instanceof KeyCaps).length, 0, "the answer is not shown");
    }

    function test_speaksCzech(): void {
        Localized.czech = true;
        verify(hasText("Úkol 1"));
        verify(hasText("0 bodů"));
        verify(hasText("Stiskněte odpovídající kombinaci kláves"));
        verify(hasText("Kopírovat"));
        verify(hasText("Klikněte sem a stiskněte zkratku"));
        verify(named("Začít znovu"));
        verify(named("Další úkol"));
        begin();
        answerWrong();
        verify(hasText("Zkuste si zapamatovat správnou kombinaci"));
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_V, Qt.MetaModifier);
        verify(hasText("Správně"));
    }

    function test_saysThatAnAnswerIsCorrect(): void {
        begin();
        answerCopy();
        verify(hasText("Correct"));
        verify(hasText("1 points"));
        const answer = named("Correct");
        compare(answer.Accessible.role, Accessible.AlertMessage);
        compare(answer.tint, Theme.right);
        compare(answer.Accessible.description, "");
        verify(hasSymbol("check_circle-fill"));
        compare(findAll(item, candidate => candidate instanceof KeyCaps).length, 0);
    }

    function test_saysThatAnAnswerIsWrongAndWhatIsRight(): void {
        begin();
        answerWrong();
        verify(hasText(wrongText));
        verify(hasText("0 points"));
        const answer = named(wrongText);
        compare(answer.Accessible.role, Accessible.AlertMessage);
        compare(answer.Accessible.description, "Command C");
        compare(answer.tint, Theme.wrong);
        verify(hasSymbol("cancel-fill"));
        compare(keyCaps(), ["⌘", "C"]);
    }

    function test_saysWhatWasPressedInstead(): void {
        begin();
        keyClick(Qt.Key_Space, Qt.MetaModifier);
        verify(hasText("You pressed ⌘ Space"));
        Localized.czech = true;
        verify(hasText("Stiskli jste ⌘ Mezerník"));
        keyClick(Qt.Key_Return);
        verify(!hasText("Stiskli jste ⌘ Mezerník"));
    }

    function test_nothingMovesWhenAnAnswerComes(): void {
        begin();
        const place = field().mapToItem(item, 0, 0);
        const below = named("Next Task").mapToItem(item, 0, 0);
        answerWrong();
        verify(hasText(wrongText));
        compare(field().mapToItem(item, 0, 0), place);
        compare(named("Next Task").mapToItem(item, 0, 0), below);
    }

    function test_theFieldSaysWhatIsAskedFor(): void {
        compare(field().Accessible.description, "Copy");
        begin();
        compare(field().Accessible.description, "Copy. Esc twice lets go of the keyboard");
        answerCopy();
        keyClick(Qt.Key_Return);
        compare(field().Accessible.description, "Paste. Esc twice lets go of the keyboard");
    }

    function test_returnGoesOnAfterAnAnswer(): void {
        begin();
        answerCopy();
        verify(hasText("Press Return to go on"));
        keyClick(Qt.Key_Return);
        verify(hasText("Task 2"));
        verify(hasText("Paste"));
        verify(!hasText("Correct"));
        verify(field().capturing);
        keyClick(Qt.Key_Return);
        verify(hasText(wrongText));
        verify(hasText("Task 2"));
    }

    function test_returnGoesOnAfterAClickBesideTheField(): void {
        begin();
        mouseClick(item, 20, 560);
        verify(!field().capturing);
        keyClick(Qt.Key_Return);
        verify(hasText("Task 1"), "there is no answer yet");
        begin();
        answerWrong();
        mouseClick(item, 20, 560);
        verify(!field().capturing);
        verify(hasText("Press Return to go on"));
        keyClick(Qt.Key_Return);
        verify(hasText("Task 2"));
        verify(hasText("Press the matching key combination"));
    }

    function test_returnOnStartOverDoesNotGoOn(): void {
        begin();
        answerWrong();
        named("Start Over").forceActiveFocus(Qt.TabFocusReason);
        verify(!hasText("Press Return to go on"));
    }

    function test_theRoundEndsWithItsScore(): void {
        begin();
        answerCopy();
        for (let task = 2; task <= 8; ++task) {
            verify(!hasText("Round complete, 1 of 8 correct"));
            keyClick(Qt.Key_Return);
            verify(hasText("Task " + task));
            answerWrong();
        }
        verify(hasText("Round complete, 1 of 8 correct"));
        compare(named("Round complete, 1 of 8 correct").Accessible.role, Accessible.AlertMessage);
        keyClick(Qt.Key_Return);
        verify(hasText("Task 1"));
        verify(hasText("0 points"));
        verify(!hasText("Round complete, 1 of 8 correct"));
    }

    function test_progressGrowsWithTheTasks(): void {
        const bar = findChild(item, "progress");
        verify(bar !== null);
        const whole = bar.parent.width;
        fuzzyCompare(bar.width, whole / 8, 0.01);
        mouseClick(named("Next Task"));
        fuzzyCompare(bar.width, whole / 4, 0.01);
    }

    function test_aClickOnNextTaskKeepsTheKeyboardInTheField(): void {
        begin();
        answerCopy();
        const button = named("Next Task");
        mouseClick(button);
        verify(hasText("Task 2"));
        tryVerify(() => field().capturing);
    }

    function test_theButtonsWorkFromTheKeyboard(): void {
        named("Next Task").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        verify(hasText("Task 2"));
        verify(named("Next Task").activeFocus);
        named("Start Over").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        verify(hasText("Task 1"));
    }

    function test_escapeTwiceLeavesTheField(): void {
        begin();
        keyClick(Qt.Key_Escape);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !field().capturing);
        verify(named("Next Task").activeFocus);
        verify(hasText("Task 1"));
        verify(hasText("Click here and press the shortcut"));
    }

    function test_startsOver(): void {
        begin();
        answerCopy();
        mouseClick(named("Start Over"));
        verify(hasText("Task 1"));
        verify(hasText("0 points"));
        verify(!hasText("Correct"));
        // What was answered right comes later.
        verify(hasText("Paste"));
    }

    function test_theFirstControlIsTheField(): void {
        item.focusFirst();
        verify(field().capturing);
    }

    function hasSymbol(name: string): bool {
        return findAll(item, candidate => candidate instanceof Symbol && candidate.name === name).length > 0;
    }

    function keyCaps(): list<string> {
        return Array.from(findAll(item, candidate => candidate instanceof KeyCaps)[0].keys);
    }

    name: "PracticeView"
    subject: Component {
        PracticeView {
            width: 750
            height: 570
            practice: Fixture.learning.practice
            keyReader: Fixture.keyReader
        }
    }
}
