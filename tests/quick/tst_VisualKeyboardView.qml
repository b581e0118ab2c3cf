// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property VisualKeyboard keyboard: Fixture.learning.keyboard

    function keys(): list<Item> {
        return findAll(item, candidate => candidate instanceof DrawnKey);
    }

    function key(token: string): Item {
        return keys().find(candidate => candidate.token === token);
    }

    function rows(): var {
        let rows = [];
        for (const key of keys()) {
            const y = key.mapToItem(item, 0, 0).y;
            let row = rows.find(row => row.y === y);
            if (row === undefined)
                rows.push(row = {
                    "y": y,
                    "keys": []
                });
            row.keys.push(key);
        }
        return rows;
    }

    function focusedToken(): string {
        return keys().find(key => key.activeFocus)?.token ?? "";
    }

    function focusOn(token: string): void {
        item.forceActiveFocus();
        key(token).forceActiveFocus();
    }

    function test_theKeysStandInFourRowsOfOneWidth(): void {
        compare(rows().map(row => row.keys.map(key => key.token).join(" ")), ["Esc 1 2 3 4 5 6 7 8 9 0 − =", "Tab Q W E R T Y U I O P [ ]", "⇧ A S D F G H J K L ; '", "Fn ⌃ ⌥ ⌘ Space ⌘ ⌥ ← ↑ ↓ →"]);
        for (const row of rows()) {
            const last = row.keys[row.keys.length - 1];
            compare(row.keys[0].x, rows()[0].keys[0].x);
            compare(last.x + last.width, item.width - 2 * item.padding - row.keys[0].x);
            for (let i = 1; i < row.keys.length; ++i)
                compare(row.keys[i].x, row.keys[i - 1].x + row.keys[i - 1].width + 7);
        }
        verify(key("Tab").width > key("Q").width);
        verify(key("⇧").width > key("A").width);
        verify(key("Space").width > 3 * key("Fn").width);
    }

    function test_noKeyIsMarkedUntilAModifierIsChosen(): void {
        for (const key of keys())
            verify(!key.available, key.token);
        mouseClick(named("⌘ Command"));
        verify(key("⌘").available);
        verify(key("S").available);
        verify(!key("Fn").available);
        mouseClick(named("Clear Filters"));
        verify(!key("S").available);
    }

    function test_aMarkedKeyLooksDifferent(): void {
        Fixture.appModel.toggleModifierToken("⌘");
        verify(!Qt.colorEqual(key("S").ink, key("Fn").ink));
        verify(key("S").background.color.a > key("Fn").background.color.a);
        verify(key("S").background.borderColor.a > key("Fn").background.borderColor.a);
        key("S").clicked();
        verify(!Qt.colorEqual(key("S").ink, key("A").ink));
        verify(Qt.colorEqual(key("S").background.color, Theme.accent));
    }

    function test_theSearchNarrowsTheMarkedKeys(): void {
        Fixture.addCustom("Only One", ["⌘", "]"]);
        Fixture.appModel.toggleModifierToken("⌘");
        Fixture.appModel.search = "Only One";
        compare(keys().filter(key => key.available).map(key => key.token), ["]", "⌘", "⌘"]);
    }

    function test_aClickShowsTheShortcutsOfTheKey(): void {
        Fixture.addCustom("Only One", ["⌘", "⇧", "]"]);
        Fixture.appModel.search = "Only One";
        compare(cardTitles(), []);
        mouseClick(key("]"));
        verify(key("]").selected);
        compare(cardTitles(), ["Only One"]);
        verify(!hasText("No matching shortcut"));
    }

    function test_aKeyThatIsNotMarkedCanBeChosenToo(): void {
        Fixture.appModel.toggleModifierToken("⌘");
        verify(!key("Fn").available);
        mouseClick(key("Fn"));
        verify(key("Fn").selected);
        compare(cardTitles(), []);
        verify(hasText("No matching shortcut"));
        Localized.czech = true;
        verify(hasText("Žádná odpovídající zkratka"));
        Fixture.appModel.clearModifiers();
        verify(cardTitles().length > 0);
        verify(!hasText("Žádná odpovídající zkratka"));
    }

    function test_bothKeysOfAModifierAreOne(): void {
        const commands = keys().filter(key => key.token === "⌘");
        compare(commands.length, 2);
        mouseClick(commands[1]);
        verify(commands[0].selected);
        verify(commands[1].selected);
    }

    function test_atMostTwelveCardsAreShown(): void {
        for (let i = 1; i <= 30; ++i)
            Fixture.addCustom("Many " + i, ["⌘", ";"]);
        Fixture.appModel.search = "Many";
        mouseClick(key(";"));
        compare(keyboard.matchCount, 30);
        compare(cardTitles(), Fixture.titlesShown().slice(0, 12));
    }

    function test_theButtonFollowsTheCardsAndOpensTheLibrary(): void {
        verify(!hasText("Open Full Library"));
        Fixture.selectCategory(0);
        mouseClick(key("S"));
        const button = named("Open Full Library");
        const last = cards()[cards().length - 1];
        tryVerify(() => button.mapToItem(item, 0, 0).y > last.mapToItem(item, 0, 0).y + last.height);
        button.clicked();
        compare(Fixture.sections.pageTitle, "Library");
        Localized.czech = true;
        verify(named("Otevřít celou knihovnu"));
    }

    function test_theStarOfACardTogglesTheFavorite(): void {
        Fixture.addCustom("Only One", ["⌘", "]"]);
        mouseClick(key("]"));
        verify(!card("Only One").isFavorite);
        const star = named("Favorite: Only One");
        item.show(card("Only One"));
        mouseClick(star);
        verify(card("Only One").isFavorite);
    }

    function test_textsAreThereInBothLanguages(): void {
        verify(hasText("Click a key to discover every shortcut that uses it."));
        compare(key("Space").label, "Space");
        Localized.czech = true;
        verify(hasText("Klikni na klávesu a objev všechny zkratky, které ji používají."));
        compare(key("Space").label, "Mezerník");
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
        Fixture.appModel.search = "qqqq";
        Fixture.appModel.toggleModifierToken("⌘");
        mouseClick(key("S"));
        const labels = findAll(item, candidate => candidate instanceof PlainLabel);
        verify(labels.length > 49);
        for (const label of labels)
            tryVerify(() => !label.truncated && label.contentWidth <= Math.ceil(label.width), undefined, label.text);
    }

    function test_keysSayWhatTheyAreAndWhetherTheyAreInUse(): void {
        compare(key("↑").Accessible.name, "Up Arrow");
        Fixture.appModel.toggleModifierToken("⌘");
        compare(key("⇧").Accessible.name, "Shift, available");
        mouseClick(key("S"));
        compare(key("S").Accessible.name, "S, available, selected");
        verify(key("S").Accessible.selected);
        verify(!key("A").Accessible.selected);
        Localized.czech = true;
        compare(key("S").Accessible.name, "S, dostupná, vybraná");
        compare(key("Space").Accessible.name, key("Space").available ? "Mezerník, dostupná" : "Mezerník, nedostupná");
        compare(key("Fn").Accessible.name, "Fn, nedostupná");
    }

    function test_tabStopsOnceAtTheKeyboard(): void {
        named("Fn Function").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(focusedToken(), "Esc");
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Space);
        verify(key("1").selected);
        keyClick(Qt.Key_Tab);
        compare(focusedToken(), "");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(focusedToken(), "1");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(named("Fn Function").activeFocus);
    }

    function test_arrowKeysMoveBetweenTheKeys(): void {
        focusOn("Esc");
        const moves = [[Qt.Key_Left, "Esc"], [Qt.Key_Up, "Esc"], [Qt.Key_Right, "1"], [Qt.Key_Left, "Esc"], [Qt.Key_End, "="], [Qt.Key_Right, "="], [Qt.Key_Down, "]"], [Qt.Key_Down, "'"], [Qt.Key_Down, "→"], [Qt.Key_Home, "Fn"], [Qt.Key_Up, "⇧"], [Qt.Key_Up, "Tab"]];
        for (const [arrow, token] of moves) {
            keyClick(arrow);
            compare(focusedToken(), token);
        }
    }

    function test_upAndDownGoToTheNearestKey(): void {
        focusOn("T");
        keyClick(Qt.Key_Down);
        verify(["F", "G"].includes(focusedToken()));
        keyClick(Qt.Key_Down);
        compare(focusedToken(), "Space");
        focusOn("Q");
        keyClick(Qt.Key_Up);
        verify(["1", "2"].includes(focusedToken()));
    }

    function test_returnChoosesAKey(): void {
        focusOn("G");
        keyClick(Qt.Key_Return);
        compare(keyboard.selectedKey, "G");
    }

    function test_theKeyboardComesBackToTheChosenKey(): void {
        keyboard.select("K");
        root.item.visible = false;
        root.item = createTemporaryObject(subject, root);
        named("Fn Function").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(focusedToken(), "K");
    }

    function test_arrowKeysMoveBetweenTheCards(): void {
        for (const title of ["One", "Two", "Three"])
            Fixture.addCustom(title, ["⌘", "]"]);
        keyboard.select("]");
        const titles = cardTitles();
        named("Fn Function").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Tab);
        const moves = [[Qt.Key_Left, 0], [Qt.Key_Right, 1], [Qt.Key_Left, 0], [Qt.Key_Down, 2], [Qt.Key_Up, 0], [Qt.Key_End, titles.length - 1], [Qt.Key_Home, 0]];
        verify(card(titles[0]).activeFocus);
        for (const [arrow, index] of moves) {
            keyClick(arrow);
            verify(card(titles[index]).activeFocus, titles[index]);
        }
    }

    function test_theFocusOfACardThatGoesMovesToItsNeighbour(): void {
        for (const title of ["One", "Two", "Three"])
            Fixture.addCustom(title, ["⌘", "]"]);
        Fixture.appModel.search = "o";
        keyboard.select("]");
        Fixture.appModel.search = "e";
        compare(cardTitles().includes("One"), true);
        const flow = findAll(item, candidate => candidate instanceof CardFlow)[0];
        flow.forceActiveFocus();
        keyClick(Qt.Key_End);
        Fixture.appModel.search = "One";
        compare(cardTitles(), ["One"]);
        verify(card("One").activeFocus);
    }

    function test_whatGetsTheFocusComesIntoView(): void {
        Theme.showsFocus = true;
        item.height = 300;
        keyboard.select("S");
        const button = named("Open Full Library");
        button.forceActiveFocus();
        const bottom = button.mapToItem(item, 0, 0).y + button.height;
        verify(bottom > 0 && bottom <= item.height);
        named("⌘ Command").forceActiveFocus();
        verify(named("⌘ Command").mapToItem(item, 0, 0).y >= 0);
    }

    function test_aPressOfTheMouseDoesNotScroll(): void {
        item.height = 130;
        const top = key("1").mapToItem(item, 0, 0).y;
        mouseClick(key("1"), 10, 5);
        verify(key("1").selected);
        compare(key("1").mapToItem(item, 0, 0).y, top);
    }

    name: "VisualKeyboardView"
    sidebarRow: 2
    subject: Component {
        VisualKeyboardView {
            width: 750
            height: 560
            appModel: Fixture.appModel
            keyboard: Fixture.learning.keyboard
        }
    }
}
