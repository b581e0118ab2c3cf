// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function panels(): list<Item> {
        return findAll(item, candidate => candidate instanceof TitledPanel).sort((a, b) => a.y - b.y);
    }

    function titlesIn(panel: Item): list<string> {
        return findAll(panel, candidate => candidate instanceof ShortcutCard).map(card => card.title);
    }

    function flickable(): Item {
        return findAll(item, candidate => candidate instanceof Flickable)[0];
    }

    function test_thereIsATileForEachSituationAndThenTheWarning(): void {
        compare(panels().map(panel => panel.title), ["App is not responding", "I accidentally changed something", "I can't find a file or app", "I need to capture my screen", "I want to get back to work fast", "Startup & recovery"]);
        compare(panels().map(panel => panel.symbol), ["warning-fill", "undo", "search", "photo_camera", "select_window", "gpp_maybe-fill"]);
        compare(panels().map(titlesIn), [["Force Quit"], ["Undo", "Redo"], ["Spotlight", "Find"], ["Capture Selection", "Screenshot & Recording"], ["Switch App", "Mission Control", "App Windows"], []]);
    }

    function test_everythingFollowsTheLanguage(): void {
        verify(hasText("What just happened?"));
        verify(hasText("Pick a situation. Keyvora will suggest the fastest way out."));
        verify(hasText("These aren't regular keyboard shortcuts. Shut down your Mac safely first and save your work."));
        verify(hasText("Don't use an NVRAM reset or old startup key combos without checking your Mac's type and Apple's current documentation."));
        Localized.czech = true;
        verify(hasText("Co se právě stalo?"));
        verify(hasText("Vyber situaci. Keyvora nabídne nejrychlejší cestu ven."));
        verify(hasText("Tyto postupy nejsou běžné klávesové zkratky. Nejdřív Mac bezpečně vypněte a uložte práci."));
        verify(hasText("Reset NVRAM a staré startovací kombinace nepoužívejte bez ověření typu Macu a aktuální dokumentace Apple."));
        compare(panels().map(panel => panel.title), ["Aplikace nereaguje", "Něco jsem omylem změnil", "Nemohu najít soubor nebo aplikaci", "Potřebuji zachytit obrazovku", "Chci se rychle vrátit k práci", "Spuštění a obnovení Macu"]);
        compare(titlesIn(panels()[1]), ["Vrátit zpět", "Provést znovu"]);
    }

    function test_theWarningSpeaksOfBothKindsOfMac_data(): var {
        return [
            {
                "tag": "English",
                "czech": false,
                "words": ["Apple silicon", "power button", "Options", "Intel", "Command-R", "Option ", "Shift", "D for diagnostics"]
            },
            {
                "tag": "Czech",
                "czech": true,
                "words": ["čipem Apple", "zapínací tlačítko", "Volby", "Intel", "Command-R", "Option ", "Shift", "D pro diagnostiku"]
            }
        ];
    }

    function test_theWarningSpeaksOfBothKindsOfMac(data: var): void {
        Localized.czech = data.czech;
        const text = findAll(panels()[5], candidate => candidate instanceof Paragraph).map(label => label.text).join("\n");
        for (const word of data.words)
            verify(text.includes(word), word);
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
        verify(labels.length > 20);
        for (const label of labels)
            tryVerify(() => !label.truncated && label.contentWidth <= Math.ceil(label.width), undefined, label.text);
    }

    function test_theSearchDoesNotConcernFirstAid(): void {
        Fixture.appModel.search = "qqqq";
        compare(titlesIn(panels()[0]), ["Force Quit"]);
    }

    function test_titlesAndTextsAreThereForScreenReaders(): void {
        compare(named("Startup & recovery").Accessible.role, Accessible.Heading);
        compare(named("What just happened?").Accessible.role, Accessible.Heading);
        compare(named("Pick a situation. Keyvora will suggest the fastest way out.").Accessible.role, Accessible.StaticText);
    }

    function test_aStarTogglesTheFavorite(): void {
        mouseClick(named("Favorite: Force Quit"));
        verify(card("Force Quit").isFavorite);
    }

    function test_tabGoesFromTileToTileAndScrolls(): void {
        Theme.showsFocus = true;
        item.focusFirst();
        verify(card("Force Quit").activeFocus);
        for (const title of ["Undo", "Spotlight", "Capture Selection", "Switch App"]) {
            keyClick(Qt.Key_Tab);
            const focused = card(title);
            verify(focused.activeFocus, title);
            const panel = panels().find(panel => titlesIn(panel).includes(title));
            const top = panel.mapToItem(item, 0, 0).y;
            verify(top >= 0 && top + panel.height <= item.height, title);
        }
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(card("Capture Selection").activeFocus);
    }

    function test_keysThatNoCardUsesScroll(): void {
        item.focusFirst();
        compare(flickable().contentY, 0);
        keyClick(Qt.Key_Right);
        compare(flickable().contentY, 0);
        keyClick(Qt.Key_Down);
        verify(flickable().contentY > 0);
        keyClick(Qt.Key_Up);
        compare(flickable().contentY, 0);
        for (let i = 0; i < 10; ++i)
            keyClick(Qt.Key_PageDown);
        verify(flickable().atYEnd);
        keyClick(Qt.Key_PageUp);
        verify(!flickable().atYEnd);
    }

    name: "FirstAidView"
    subject: Component {
        FirstAidView {
            width: 750
            height: 560
            appModel: Fixture.appModel
            groups: Fixture.learning.firstAid
        }
    }
}
