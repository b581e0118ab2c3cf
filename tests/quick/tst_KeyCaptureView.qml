// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property KeyCaptureView field: item === null ? null : item.children[0] as KeyCaptureView
    readonly property TextInput neighbour: item === null ? null : item.children[1] as TextInput
    property int commands: 0

    SignalSpy {
        id: pressed
        target: root.field
        signalName: "pressed"
    }
    SignalSpy {
        id: released
        target: root.field
        signalName: "released"
    }

    function outside(): void {
        mouseClick(item, 600, 500);
    }

    function capture(): void {
        mouseClick(field);
        verify(field.capturing);
    }

    // What was pressed, as the keys give it alone.
    function plain(): list<string> {
        return pressed.signalArguments.map(parameters => parameters[0].plain);
    }

    function reset(): void {
        pressed.clear();
        released.clear();
        commands = 0;
    }

    function test_aClickTakesTheKeyboard(): void {
        reset();
        verify(!field.capturing);
        verify(hasText("Click here and press the shortcut"));
        compare(field.Accessible.name, "Click here and press the shortcut");
        capture();
        verify(hasText("Press the shortcut…"));
        verify(hasText("Esc twice lets go of the keyboard"));
        compare(field.Accessible.name, "Press the shortcut…");
        compare(field.Accessible.description, "Esc twice lets go of the keyboard");
        Localized.czech = true;
        compare(field.Accessible.name, "Stiskněte zkratku…");
        compare(field.Accessible.description, "Esc dvakrát ukončí snímání");
        outside();
        compare(field.Accessible.name, "Klikněte sem a stiskněte zkratku");
        compare(field.Accessible.description, "");
    }

    function test_tabTakesTheKeyboard(): void {
        reset();
        neighbour.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(field.capturing);
        compare(pressed.count, 0);
    }

    function test_aNarrowFieldSaysAllInOneLine(): void {
        reset();
        field.isNarrow = true;
        capture();
        const labels = findAll(field, candidate => candidate instanceof PlainLabel);
        compare(labels.length, 2);
        fuzzyCompare(labels[0].mapToItem(field, 0, labels[0].height / 2).y, labels[1].mapToItem(field, 0, labels[1].height / 2).y, 2);
        verify(labels[1].mapToItem(field, labels[1].width, 0).x <= field.width);
    }

    function test_itsOutlineTellsTheState(): void {
        reset();
        const dashed = () => findAll(field, candidate => candidate instanceof DashedOutline).length;
        compare(dashed(), 1);
        capture();
        compare(dashed(), 0);
        outside();
        compare(dashed(), 1);
    }

    function test_tellsWhatIsPressed(): void {
        reset();
        capture();
        keyClick(Qt.Key_K, Qt.MetaModifier | Qt.ShiftModifier);
        compare(pressed.count, 1);
        const press = pressed.signalArguments[0][0];
        verify(press.command && press.shift && !press.control && !press.option);
        compare(press.plain, "K");
    }

    function test_modifiersAloneAreNoPress(): void {
        reset();
        capture();
        for (const key of [Qt.Key_Control, Qt.Key_Alt, Qt.Key_Shift, Qt.Key_Meta])
            keyClick(key);
        compare(pressed.count, 0);
    }

    function test_nobodyElseGetsAKey(): void {
        reset();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        compare(commands, 1);
        capture();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        keyClick(Qt.Key_Return);
        compare(plain(), ["F", "Tab", "Tab", "Return"]);
        compare(commands, 1);
        verify(field.capturing);
        outside();
        keyClick(Qt.Key_F, Qt.ControlModifier);
        compare(commands, 2);
        compare(pressed.count, 4);
    }

    function test_aClickElsewhereLetsGo(): void {
        reset();
        capture();
        mouseClick(field, 10, 10);
        verify(field.capturing);
        outside();
        verify(!field.capturing);
        verify(!field.activeFocus);
        compare(released.count, 0);
    }

    function test_aTouchElsewhereLetsGo(): void {
        reset();
        const fingers = touchEvent(item);
        fingers.press(0, field, 20, 20).commit();
        fingers.release(0, field, 20, 20).commit();
        verify(field.capturing);
        fingers.press(0, item, 600, 500).commit();
        verify(!field.capturing);
        fingers.release(0, item, 600, 500).commit();
    }

    function test_escapeTwiceLetsGo(): void {
        reset();
        capture();
        keyClick(Qt.Key_Escape);
        verify(field.capturing);
        compare(pressed.count, 0);
        keyClick(Qt.Key_Escape);
        verify(!field.capturing);
        verify(!field.activeFocus);
        compare(released.count, 1);
        compare(pressed.count, 0);
    }

    function test_escapeOnceIsAPress(): void {
        reset();
        field.escapeInterval = 1;
        capture();
        keyClick(Qt.Key_Escape);
        tryCompare(pressed, "count", 1);
        compare(plain(), ["Esc"]);
        verify(field.capturing);
        keyClick(Qt.Key_Escape);
        verify(!field.capturing);
        compare(released.count, 1);
        compare(pressed.count, 1);
    }

    function test_aKeyBetweenStartsTheCountOfEscapesAgain(): void {
        reset();
        capture();
        keyClick(Qt.Key_Escape);
        keyClick(Qt.Key_A);
        compare(plain(), ["Esc", "A"]);
        keyClick(Qt.Key_Escape);
        verify(field.capturing);
        keyClick(Qt.Key_Escape);
        verify(!field.capturing);
        compare(plain(), ["Esc", "A"]);
    }

    function test_escapeWithModifiersIsAPress(): void {
        reset();
        capture();
        keyClick(Qt.Key_Escape, Qt.AltModifier | Qt.MetaModifier);
        keyClick(Qt.Key_Escape, Qt.AltModifier | Qt.MetaModifier);
        compare(plain(), ["Esc", "Esc"]);
        verify(field.capturing);
    }

    function test_whatWasHeldBackEndsWithTheCapture(): void {
        reset();
        capture();
        keyClick(Qt.Key_Escape);
        outside();
        capture();
        keyClick(Qt.Key_Escape);
        verify(field.capturing);
        compare(pressed.count, 0);
    }

    function test_letsGoAfterALongTimeWithoutAKey(): void {
        reset();
        compare(field.patience, 120000);
        field.patience = 1;
        mouseClick(field);
        tryCompare(released, "count", 1);
        verify(!field.capturing);
        verify(!field.activeFocus);
    }

    function test_letsGoWhenItDisappears(): void {
        reset();
        capture();
        field.visible = false;
        verify(!field.capturing);
    }

    name: "KeyCaptureView"
    subject: Component {
        FocusScope {
            width: root.width
            height: root.height
            focus: true

            KeyCaptureView {
                reader: Fixture.keyReader
                escapeInterval: 100000
            }
            TextInput {
                y: 200
                width: 100
                height: 20
                activeFocusOnTab: true
            }
            Shortcut {
                sequence: "Ctrl+F"
                onActivated: ++root.commands
            }
        }
    }
}
