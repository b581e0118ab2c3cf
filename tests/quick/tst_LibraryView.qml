// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function test_cardsFollowSearchAndModifiers(): void {
        Fixture.appModel.search = "copy";
        compare(cardTitles(), Fixture.titlesShown());
        compare(cardTitles()[0], "Copy");
        mouseClick(named("⌘ Command"));
        mouseClick(named("⇧ Shift"));
        compare(cardTitles(), Fixture.titlesShown());
        for (const title of cardTitles())
            verify(title !== "Copy");
        mouseClick(named("Clear Filters"));
        compare(Array.from(Fixture.appModel.modifierTokens), []);
        compare(cardTitles()[0], "Copy");
    }

    function test_pillsTellTheirState(): void {
        const pill = named("⌥ Option");
        verify(!pill.checked);
        mouseClick(pill);
        verify(pill.checked);
        Fixture.appModel.clearModifiers();
        verify(!pill.checked);
    }

    function test_aKeystrokeKeepsTheCardsThatStay(): void {
        Fixture.appModel.search = "cop";
        const before = card("Copy");
        Fixture.appModel.search = "copi";
        const after = card("Copy");
        verify(before !== null);
        compare(after, before);
        Fixture.appModel.search = "";
        compare(card("Copy"), before);
    }

    function test_theStarTogglesTheFavorite(): void {
        const star = named("Favorite: Undo");
        verify(!star.Accessible.checked);
        mouseClick(star);
        verify(named("Favorite: Undo").Accessible.checked);
        mouseClick(named("Favorite: Undo"));
        verify(!named("Favorite: Undo").Accessible.checked);
    }

    function test_arrowsMoveThroughTheCardsAndSpaceTogglesTheStar(): void {
        item.focusCards();
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Down);
        const redo = card("Redo");
        verify(redo.activeFocus);
        keyClick(Qt.Key_Space);
        verify(redo.isFavorite);
        keyClick(Qt.Key_End);
        tryVerify(() => cardTitles().includes("Move Block Down"));
        keyClick(Qt.Key_Home);
        tryVerify(() => cardTitles()[0] === "Copy");
    }

    function test_aClickOnACardBringsTheKeyboardThere(): void {
        mouseClick(card("Paste"), 60, 100);
        verify(card("Paste").activeFocus);
        keyClick(Qt.Key_Space);
        verify(!card("Paste").isFavorite);
    }

    function test_theKeyboardComesToACardThatIsInView(): void {
        const grid = findAll(item, candidate => candidate instanceof ShortcutGrid)[0];
        Theme.showsFocus = true;
        grid.contentY = 1500;
        item.focusCards();
        const copy = card("Copy");
        verify(copy !== null && copy.activeFocus);
        verify(copy.mapToItem(grid, 0, 0).y >= 0);
    }

    function test_theKeyboardIsNotLostWhereThereAreNoCards(): void {
        Fixture.appModel.search = "qqqq";
        item.focusCards();
        verify(named("⌘ Command").activeFocus);
    }

    function test_returnSwitchesAFilter(): void {
        const pill = named("⌘ Command");
        pill.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(Array.from(Fixture.appModel.modifierTokens), ["⌘"]);
        keyClick(Qt.Key_Enter);
        compare(Array.from(Fixture.appModel.modifierTokens), []);
    }

    function test_screenReadersHearOfAFavorite(): void {
        verify(card("Copy").Accessible.checked);
        verify(!card("Undo").Accessible.checked);
        Fixture.appModel.toggleFavorite("undo");
        verify(card("Undo").Accessible.checked);
    }

    function test_columnsAreAtLeast250PointsWide_data(): var {
        return [
            {
                "width": 750,
                "columns": 2
            },
            {
                "width": 807,
                "columns": 2
            },
            {
                "width": 822,
                "columns": 3
            },
            {
                "width": 1400,
                "columns": 5
            },
            {
                "width": 280,
                "columns": 1
            }
        ];
    }

    function test_columnsAreAtLeast250PointsWide(data: var): void {
        item.width = data.width;
        const shown = cards();
        const lefts = new Set(shown.map(card => Math.round(card.mapToItem(item, 0, 0).x)));
        compare(lefts.size, data.columns);
        compare(Math.min(...lefts), 22);
        if (data.columns > 1)
            verify(shown[0].width >= 250);
        verify(shown[0].height >= 145);
    }

    function test_theHeaderNamesTheOnlyApplicationUnlessTheCategoryDoes(): void {
        Fixture.appModel.search = "Frame Tool";
        compare(cards()[0].headerText, "Pro Tools · Figma");
        Fixture.appModel.search = "New Folder";
        compare(cards()[0].headerText, "Finder");
    }

    function test_cardsFollowTheLanguage(): void {
        compare(cardTitles()[0], "Copy");
        Localized.czech = true;
        compare(cardTitles()[0], "Kopírovat");
        compare(cards()[0].headerText, "Základy");
    }

    function test_textOfAnotherProgramIsNoMarkup(): void {
        Fixture.addCustom("<img src='x'><b>Evil</b>", ["⌘", "E"]);
        Fixture.appModel.search = "Evil";
        compare(cardTitles(), ["<img src='x'><b>Evil</b>"]);
        const label = findAll(item, candidate => candidate.text === "<img src='x'><b>Evil</b>")[0];
        compare(label.textFormat, Text.PlainText);
    }

    name: "LibraryView"
    subject: Component {
        LibraryView {
            width: 750
            height: 560
            appModel: Fixture.appModel
        }
    }
}
