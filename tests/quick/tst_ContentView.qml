// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    property bool isFirstTime: false

    function test_everySectionShowsItsTitle_data(): var {
        return [
            {
                "row": "All Shortcuts",
                "title": "Library",
                "czech": "Knihovna"
            },
            {
                "row": "Favorites",
                "title": "Favorites",
                "czech": "Oblíbené"
            },
            {
                "row": "Visual Keyboard",
                "title": "Visual Keyboard",
                "czech": "Vizuální klávesnice"
            },
            {
                "row": "Cheat Sheet",
                "title": "Cheat Sheet Shortcuts",
                "czech": "Zkratky ze samolepky"
            },
            {
                "row": "First Aid",
                "title": "First Aid",
                "czech": "První pomoc"
            },
            {
                "row": "Shortcut of the Day",
                "title": "Today's Lesson",
                "czech": "Dnešní výuka"
            },
            {
                "row": "Practice",
                "title": "Practice",
                "czech": "Procvičování"
            },
            {
                "row": "Basics",
                "title": "Basics",
                "czech": "Základy"
            },
            {
                "row": "Pro Tools",
                "title": "Pro Tools",
                "czech": "Profesionální nástroje"
            }
        ];
    }

    function test_everySectionShowsItsTitle(data: var): void {
        mouseClick(findAll(item, candidate => candidate instanceof SidebarRow && candidate.text === data.row)[0]);
        compare(Fixture.sections.pageTitle, data.title);
        verify(hasText(data.title));
        Localized.czech = true;
        compare(Fixture.sections.pageTitle, data.czech);
        verify(hasText(data.czech));
    }

    function test_aSectionWithAScreenOfItsOwnHidesTheLibrary(): void {
        verify(cardTitles().length > 0);
        mouseClick(named("Practice"));
        compare(cardTitles().length, 0);
        mouseClick(named("All Shortcuts"));
        verify(cardTitles().length > 0);
    }

    function test_controlFGoesToTheSearchFieldAndEscapeEmptiesIt(): void {
        keyClick(Qt.Key_F, Qt.ControlModifier);
        const search = named("Search");
        verify(search.activeFocus);
        keyClick(Qt.Key_C);
        keyClick(Qt.Key_O);
        compare(Fixture.appModel.search, "co");
        keyClick(Qt.Key_Escape);
        compare(Fixture.appModel.search, "");
        compare(search.text, "");
    }

    function test_theClearButtonIsThereWhileThereIsText(): void {
        Fixture.appModel.search = "copy";
        compare(named("Search").text, "copy");
        mouseClick(named("Clear search"));
        compare(Fixture.appModel.search, "");
        verify(named("Search").activeFocus);
    }

    function test_aSearchThatMatchesNothingShowsTheEmptyState(): void {
        Fixture.appModel.search = "qqqq";
        verify(hasText("No matching shortcut"));
        verify(hasText("Clear a filter or change your search."));
        Localized.czech = true;
        verify(hasText("Žádná odpovídající zkratka"));
        verify(hasText("Zrušte některý filtr nebo změňte hledání."));
    }

    function test_theActiveAppStandsInTheTopBar(): void {
        verify(hasText("Mac"));
        Fixture.activate("Text Editor");
        verify(hasText("Text Editor"));
    }

    function test_markupInNamesIsShownAsItIs(): void {
        Fixture.activate("<b>Bold</b>");
        const label = findAll(item, candidate => candidate.text === "<b>Bold</b>")[0];
        compare(label.textFormat, Text.PlainText);
    }

    function test_settingsOpenAndCloseAndChangeTheLanguage(): void {
        mouseClick(named("Settings"));
        const czech = named("Čeština");
        verify(named("English").checked);
        mouseClick(czech);
        verify(Localized.czech);
        verify(hasText("Nastavení"));
        verify(hasText("Všechny zkratky"));
        verify(hasText("KNIHOVNA"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => findAll(item.Window.window.contentItem, candidate => candidate.text === "Čeština").length === 0);
    }

    function test_theImportMenuIsNamedInBothLanguages(): void {
        verify(named("Import from Menu"));
        Localized.czech = true;
        verify(named("Import z menu"));
    }

    function test_onboardingGreetsTheFirstTime(): void {
        verify(!hasText("Welcome to Keyvora"));
        const other = createTemporaryObject(subject, root, {
            "isFirstTime": true
        });
        verify(other);
        tryVerify(() => hasText("Welcome to Keyvora"));
        keyClick(Qt.Key_Return);
        tryVerify(() => !hasText("Welcome to Keyvora"));
    }

    function test_theContentTellsItsOwnMinimum(): void {
        compare(item.minimumWidth, 980);
        verify(item.minimumHeight >= 650);
    }

    name: "ContentView"
    subject: Component {
        ContentView {
            width: root.width
            height: root.height
            appModel: Fixture.appModel
            sections: Fixture.sections
            appMenu: Fixture.appMenu
            isFirstTime: root.isFirstTime
        }
    }
}
