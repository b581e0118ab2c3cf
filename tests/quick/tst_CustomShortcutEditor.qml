// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property CustomShortcutEditor sheet: item?.sheet ?? null
    readonly property CustomShortcutDraft draft: Fixture.customs.draft

    function open(): void {
        sheet.open();
        tryVerify(() => sheet.opened);
        waitForRendering(item);
    }

    function type(text: string): void {
        for (const character of text)
            keyClick(character);
    }

    function caps(): list<string> {
        return Array.from(findAll(item.Window.window.contentItem, candidate => candidate instanceof KeyCaps)[0].keys);
    }

    function captureField(): KeyCaptureView {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof KeyCaptureView)[0] as KeyCaptureView ?? null;
    }

    function test_everyTextIsThereInBothLanguages_data(): var {
        return [
            {
                "tag": "English",
                "czech": false,
                "labels": ["Title", "Keys (separate with + and → for steps)", "Category", "App (optional)", "Description"],
                "texts": ["Add Custom Shortcut", "e.g. ⌥ + ⌘ + K or ⌘+K → ⌘+C", "e.g. Finder", "Basics"],
                "buttons": ["Press keys", "Cancel", "Save"]
            },
            {
                "tag": "Czech",
                "czech": true,
                "labels": ["Název", "Klávesy (oddělte + a → pro krok)", "Kategorie", "Aplikace (volitelné)", "Popis"],
                "texts": ["Přidat vlastní zkratku", "např. ⌥ + ⌘ + K nebo ⌘+K → ⌘+C", "např. Finder", "Základy"],
                "buttons": ["Stisknout klávesy", "Zrušit", "Uložit"]
            }
        ];
    }

    function test_everyTextIsThereInBothLanguages(data: var): void {
        open();
        Localized.czech = data.czech;
        for (const text of data.texts.concat(data.labels))
            verify(hasText(text), text);
        for (const name of data.labels.concat(data.buttons))
            verify(named(name), name);
        for (const label of findAll(item.Window.window.contentItem, candidate => candidate instanceof PlainLabel && candidate.text.length > 0))
            verify(!label.truncated, label.text);
    }

    function test_writtenKeysAreShownAsTheyAreRead(): void {
        open();
        verify(named("Title").activeFocus);
        draft.keysText = "⌘+K → ⌘+C";
        compare(named("Keys (separate with + and → for steps)").text, "⌘+K → ⌘+C");
        compare(caps(), ["⌘", "K", "→", "⌘", "C"]);
        named("Keys (separate with + and → for steps)").forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        type("f");
        compare(draft.keys, ["f"]);
        compare(caps(), ["f"]);
    }

    function test_aConflictIsToldAsItIsWritten(): void {
        open();
        draft.title = "Mine";
        draft.keysText = "⌘ + C";
        verify(hasText("This combination is already used by “Copy”"));
        verify(named("Save").enabled);
        Localized.czech = true;
        verify(hasText("Tuhle kombinaci už používá „Kopírovat“"));
        draft.keysText = "⌘ + C + X";
        verify(!hasText("Tuhle kombinaci už používá „Kopírovat“"));
    }

    function test_savingNeedsATitleAndKeys(): void {
        open();
        const save = named("Save");
        verify(!save.enabled);
        type("a");
        verify(!save.enabled);
        keyClick(Qt.Key_Return);
        verify(sheet.opened);
        keyClick(Qt.Key_Tab);
        type("f5");
        verify(save.enabled);
        keyClick(Qt.Key_Backspace);
        keyClick(Qt.Key_Backspace);
        verify(!save.enabled);
    }

    function test_returnSavesFromEveryField_data(): var {
        return [
            {
                "tag": "Title"
            },
            {
                "tag": "Keys (separate with + and → for steps)"
            },
            {
                "tag": "Category"
            },
            {
                "tag": "App (optional)"
            },
            {
                "tag": "Description"
            },
            {
                "tag": "Save"
            }
        ];
    }

    function test_returnSavesFromEveryField(data: var): void {
        open();
        type("mine");
        draft.keysText = "⌃ + ⌥ + 9";
        named(data.tag).forceActiveFocus();
        keyClick(Qt.Key_Return);
        tryVerify(() => !sheet.visible);
        compare(Fixture.customShortcuts().length, 1);
        const saved = Fixture.customShortcuts()[0];
        verify(saved.id.startsWith("custom-"));
        compare(saved.title, "mine");
        compare(saved.keys, ["⌃", "⌥", "9"]);
        compare(saved.category, "Základy");
        compare(saved.apps, []);
        compare(saved.detail, "Custom keyboard shortcut.");
    }

    function test_theButtonSavesAllThatWasWritten(): void {
        open();
        type("word wrap");
        draft.keysText = "F9";
        named("App (optional)").forceActiveFocus();
        type("mousepad");
        keyClick(Qt.Key_Tab);
        verify(named("Description").activeFocus);
        type("wraps");
        const category = named("Category");
        category.forceActiveFocus();
        keyClick(Qt.Key_Down);
        compare(category.displayText, "Text");
        mouseClick(named("Save"));
        tryVerify(() => !sheet.visible);
        const saved = Fixture.customShortcuts()[0];
        compare(saved.title, "word wrap");
        compare(saved.category, "Text");
        compare(saved.apps, ["mousepad"]);
        compare(saved.detail, "wraps");
    }

    function test_theCategoryIsChosenFromAList(): void {
        open();
        mouseClick(named("Category"));
        tryVerify(() => hasText("Pro Tools"));
        mouseClick(findAll(item.Window.window.contentItem, candidate => candidate.text === "Screenshots")[0]);
        tryVerify(() => !hasText("Pro Tools"));
        compare(named("Category").displayText, "Screenshots");
        compare(draft.category, 4);
        Localized.czech = true;
        compare(named("Kategorie").displayText, "Snímky obrazovky");
        verify(sheet.opened);
    }

    function test_theCategoryCanBeChosenByKeyboardAndByScreenReaders(): void {
        open();
        const category = named("Category");
        category.forceActiveFocus();
        keyClick(Qt.Key_Space);
        tryVerify(() => hasText("Pro Tools"));
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryVerify(() => !hasText("Pro Tools"));
        compare(draft.category, 1);
        verify(sheet.opened);
        category.Accessible.pressAction();
        tryVerify(() => hasText("Pro Tools"));
        named("Browser").Accessible.pressAction();
        tryVerify(() => !hasText("Pro Tools"));
        compare(draft.category, 5);
        compare(category.displayText, "Browser");
    }

    function test_aLetterFindsACategory(): void {
        open();
        named("Category").forceActiveFocus();
        keyClick(Qt.Key_F);
        compare(named("Category").displayText, "Finder");
        compare(draft.category, 3);
        Localized.czech = true;
        keyClick(Qt.Key_P);
        compare(named("Kategorie").displayText, "Prohlížeč");
    }

    function test_pressedKeysAreWritten(): void {
        open();
        type("mine");
        mouseClick(named("Press keys"));
        verify(captureField().capturing);
        keyClick(Qt.Key_W, Qt.ControlModifier | Qt.ShiftModifier);
        tryVerify(() => captureField() === null);
        compare(draft.keysText, "⌃ + ⇧ + W");
        compare(caps(), ["⌃", "⇧", "W"]);
        verify(named("Keys (separate with + and → for steps)").activeFocus);
        verify(named("Save").enabled);
    }

    function test_pressedReturnIsAKeyAndSavesNothing(): void {
        open();
        type("mine");
        named("Press keys").forceActiveFocus();
        keyClick(Qt.Key_Space);
        verify(captureField().capturing);
        keyClick(Qt.Key_Return);
        compare(draft.keys, ["Return"]);
        verify(sheet.opened);
        compare(Fixture.customShortcuts().length, 0);
    }

    function test_pressingEndsWithEscapeTwiceAndTheSheetStays(): void {
        open();
        draft.keysText = "F9";
        mouseClick(named("Press keys"));
        captureField().escapeInterval = 100000;
        keyClick(Qt.Key_Escape);
        keyClick(Qt.Key_Escape);
        tryVerify(() => captureField() === null);
        verify(sheet.opened);
        compare(draft.keysText, "F9");
        verify(named("Keys (separate with + and → for steps)").activeFocus);
    }

    function test_pressingEndsWithAClickElsewhere(): void {
        open();
        mouseClick(named("Press keys"));
        verify(captureField().capturing);
        mouseClick(named("Description"));
        compare(captureField(), null);
        verify(named("Description").activeFocus);
    }

    function test_pressingEndsWithAClickOnNothing(): void {
        open();
        mouseClick(named("Press keys"));
        verify(captureField().capturing);
        mouseClick(findAll(item.Window.window.contentItem, candidate => candidate.text === "Add Custom Shortcut")[0]);
        compare(captureField(), null);
        verify(named("Keys (separate with + and → for steps)").activeFocus);
    }

    function test_cancelAndEscapeChangeNothing_data(): var {
        return [
            {
                "tag": "escape"
            },
            {
                "tag": "button"
            }
        ];
    }

    function test_cancelAndEscapeChangeNothing(data: var): void {
        open();
        type("mine");
        draft.keysText = "F9";
        if (data.tag === "escape")
            keyClick(Qt.Key_Escape);
        else
            mouseClick(named("Cancel"));
        tryVerify(() => !sheet.visible);
        compare(Fixture.customShortcuts().length, 0);
    }

    function test_theKeyboardWalksThroughTheForm(): void {
        open();
        const order = ["Title", "Keys (separate with + and → for steps)", "Press keys", "Category", "App (optional)", "Description", "Cancel"];
        for (const name of order) {
            verify(named(name).activeFocus, name);
            keyClick(Qt.Key_Tab);
        }
    }

    name: "CustomShortcutEditor"
    subject: Component {
        Item {
            readonly property alias sheet: subjectSheet

            width: 980
            height: 678

            CustomShortcutEditor {
                id: subjectSheet
                draft: Fixture.customs.draft
                keyReader: Fixture.keyReader
            }
        }
    }
}
