// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property DailyLesson lesson: Fixture.learning.lesson

    function setTime(day: int, hours: int, minutes: int, seconds: int, milliseconds: int): void {
        Fixture.setTime(new Date(Date.UTC(2026, 2, day, hours, minutes, seconds, milliseconds)));
    }

    function test_theTrioStandsInItsOrder(): void {
        Fixture.addCustomFor("Editor", "Only Here", ["⌘", "]"]);
        Fixture.activate("Editor");
        compare(cardTitles().length, 3);
        compare(cardTitles()[1], "Only Here");
        for (let row = 0; row < 3; ++row)
            compare(lesson.trio.rowOf(cards().find(card => card.title === cardTitles()[row]).shortcutId), row);
    }

    function test_everythingFollowsTheLanguage(): void {
        verify(hasText("TODAY'S TRIO  •  0-day streak"));
        verify(hasText("One basic, one tip for your active app, and one shortcut based on your own usage."));
        verify(named("I've got this trio"));
        Localized.czech = true;
        verify(hasText("DNEŠNÍ TROJICE  •  0 dní v řadě"));
        verify(hasText("Jeden základ, jeden tip pro aktivní aplikaci a jedna zkratka podle vašeho používání."));
        mouseClick(named("Trojici umím"));
        verify(hasText("DNEŠNÍ TROJICE  •  1 dní v řadě"));
        verify(named("Dnes splněno ✓"));
        Localized.czech = false;
        verify(hasText("TODAY'S TRIO  •  1-day streak"));
        verify(named("Done for today ✓"));
    }

    function test_theButtonMakesRoomOnceTheLessonIsDone(): void {
        verify(!hasText("Done for today ✓"));
        const button = named("I've got this trio");
        const place = button.mapToItem(item, 0, 0);
        mouseClick(button);
        verify(lesson.isComplete);
        verify(!hasText("I've got this trio"));
        const done = named("Done for today ✓");
        compare(done.mapToItem(item, 0, 0), place);
        compare(findAll(done, candidate => candidate instanceof Symbol).map(symbol => symbol.name), ["history"]);
    }

    function test_aLessonCountsOnceADay(): void {
        mouseClick(named("I've got this trio"));
        lesson.complete();
        verify(hasText("TODAY'S TRIO  •  1-day streak"));
        setTime(9, 12, 0, 0, 0);
        lesson.refresh();
        mouseClick(named("I've got this trio"));
        verify(hasText("TODAY'S TRIO  •  2-day streak"));
    }

    function test_aNewDayBeginsWhileTheLessonIsShown(): void {
        setTime(2, 23, 59, 59, 995);
        root.item.visible = false;
        root.item = createTemporaryObject(root.subject, root);
        lesson.complete();
        verify(named("Done for today ✓"));
        setTime(3, 0, 0, 0, 0);
        tryVerify(() => hasText("I've got this trio"));
        verify(item.followsClock);
    }

    function test_theClockIsFollowedOnlyWhileTheLessonIsShown(): void {
        verify(item.followsClock);
        lesson.complete();
        item.visible = false;
        verify(!item.followsClock);
        setTime(3, 12, 0, 0, 0);
        item.visible = true;
        verify(item.followsClock);
        verify(named("I've got this trio"));
    }

    function test_aHiddenWindowFollowsNoClock(): void {
        const window = createTemporaryQmlObject("import QtQuick; Window { width: 800; height: 600; visible: true }", root);
        const lessonView = createTemporaryObject(root.subject, window.contentItem);
        tryVerify(() => lessonView.followsClock);
        window.visible = false;
        tryVerify(() => !lessonView.followsClock);
    }

    function test_theLessonIsLookedUpWhenTheWindowBecomesActive(): void {
        const window = item.Window.window;
        const other = createTemporaryQmlObject("import QtQuick; Window { width: 100; height: 100; visible: true }", root);
        other.requestActivate();
        tryVerify(() => !window.active);
        lesson.complete();
        setTime(3, 12, 0, 0, 0);
        verify(named("Done for today ✓"));
        window.requestActivate();
        tryVerify(() => hasText("I've got this trio"));
    }

    function test_theFocusIsNotLostWithTheButton(): void {
        named("I've got this trio").forceActiveFocus();
        keyClick(Qt.Key_Space);
        verify(named("Done for today ✓").activeFocus);
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(cards()[0].activeFocus);
        named("Done for today ✓").forceActiveFocus();
        setTime(3, 12, 0, 0, 0);
        lesson.refresh();
        verify(named("I've got this trio").activeFocus);
    }

    function test_theMouseLeavesTheFocusWhereItWas(): void {
        item.focusFirst();
        lesson.complete();
        verify(cards()[0].activeFocus);
    }

    function test_headingAndTextAreThereForScreenReaders(): void {
        compare(named("TODAY'S TRIO  •  0-day streak").Accessible.role, Accessible.Heading);
        compare(named("One basic, one tip for your active app, and one shortcut based on your own usage.").Accessible.role, Accessible.StaticText);
        lesson.complete();
        compare(named("Done for today ✓").Accessible.role, Accessible.StaticText);
    }

    function test_noTextIsCutOff_data(): var {
        return [
            {
                "tag": "English",
                "czech": false
            },
            {
                "tag": "Czech",
                "czech": true
            }
        ];
    }

    function test_noTextIsCutOff(data: var): void {
        Localized.czech = data.czech;
        const labels = findAll(item, candidate => candidate instanceof PlainLabel);
        verify(labels.length > 10);
        for (const label of labels)
            tryVerify(() => !label.truncated && label.contentWidth <= Math.ceil(label.width), undefined, label.text);
    }

    name: "DailyLearningView"
    sidebarRow: 5
    subject: Component {
        DailyLearningView {
            width: 750
            height: 560
            appModel: Fixture.appModel
            lesson: Fixture.learning.lesson
        }
    }
}
