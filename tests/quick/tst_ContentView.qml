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
        mouseClick(findAll(item, candidate => candidate instanceof SidebarRow && candidate.label === data.row)[0]);
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

    function test_theWayFromTheKeyboardToTheLibraryTakesTheFocusAlong(): void {
        mouseClick(named("Visual Keyboard"));
        Fixture.learning.keyboard.select("S");
        named("Open Full Library").forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(Fixture.sections.pageTitle, "Library");
        verify(cards()[0].activeFocus);
        mouseClick(named("Visual Keyboard"));
        mouseClick(named("All Shortcuts"));
        verify(!cards()[0].activeFocus);
    }

    // As a desktop's own key settings do it.
    function test_aScreenThatComesByItselfTakesTheKeyboard(): void {
        cards()[0].forceActiveFocus();
        Fixture.learning.keyboard.select("S");
        Fixture.sections.select(2);
        compare(Fixture.sections.pageTitle, "Visual Keyboard");
        const key = named("S, selected");
        verify(key.activeFocus);
        named("Open Full Library").forceActiveFocus();
        Fixture.sections.select(6);
        compare(Fixture.sections.pageTitle, "Practice");
        keyClick(Qt.Key_Tab);
        verify(findAll(item, candidate => candidate instanceof KeyCaptureView)[0].activeFocus);
        mouseClick(named("All Shortcuts"));
        Fixture.sections.select(6);
        keyClick(Qt.Key_Tab);
        verify(!findAll(item, candidate => candidate instanceof KeyCaptureView)[0].activeFocus);
    }

    function test_controlQQuitsOverAnOpenSheet_data(): list<var> {
        return [
            {
                "tag": "Settings"
            },
            {
                "tag": "Add Custom"
            }
        ];
    }

    function test_controlQQuitsOverAnOpenSheet(data: var): void {
        quitSpy.clear();
        mouseClick(named(data.tag));
        keyClick(Qt.Key_Q, Qt.ControlModifier);
        compare(quitSpy.count, 1);
    }

    function test_escapeOnTheButtonThatEmptiesTheSearchLeadsToTheField(): void {
        Fixture.appModel.search = "copy";
        const button = named("Clear search");
        button.forceActiveFocus();
        keyClick(Qt.Key_Escape);
        compare(Fixture.appModel.search, "");
        verify(findAll(item, candidate => candidate instanceof SearchField)[0].activeFocus);
    }

    function test_downFromTheSearchFieldGoesIntoTheScreen(): void {
        mouseClick(named("First Aid"));
        keyClick(Qt.Key_F, Qt.ControlModifier);
        keyClick(Qt.Key_Down);
        verify(card("Force Quit").activeFocus);
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

    function test_theImportMenuOffersBothWays(): void {
        Fixture.activate("Mousepad");
        mouseClick(named("Import from Menu"));
        verify(named("Import from Active App “Mousepad”").enabled);
        verify(named("Import from All Running Apps").enabled);
        Localized.czech = true;
        verify(named("Import z aktivní aplikace „Mousepad“").enabled);
        verify(named("Import ze všech spuštěných aplikací").enabled);
        keyClick(Qt.Key_Escape);
    }

    function test_anOrdinaryNameIsWholeBesideTheLongestTitle(): void {
        Fixture.activate("Mousepad");
        mouseClick(named("Cheat Sheet"));
        const name = findAll(item, candidate => candidate instanceof PlainLabel && candidate.text === "Mousepad")[0];
        verify(item.width === 980);
        verify(!name.truncated);
    }

    function test_everyTitleHasItsSizeBesideAnOrdinaryName_data(): var {
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

    function test_everyTitleHasItsSizeBesideAnOrdinaryName(data: var): void {
        Localized.czech = data.czech;
        Fixture.activate("Mousepad");
        const bar = findAll(item, candidate => candidate instanceof TopBar)[0];
        const title = findAll(bar, candidate => candidate instanceof PlainLabel && candidate.size === 24)[0];
        const search = findAll(bar, candidate => candidate instanceof SearchField)[0];
        verify(item.width === 980);
        for (let row = 0; row < Fixture.sections.rowCount(); ++row) {
            Fixture.sections.select(row);
            waitForRendering(title);
            compare(title.fontInfo.pixelSize, 24, title.text);
            verify(!title.truncated, title.text);
            verify(!findAll(search, candidate => candidate instanceof PlainLabel)[0].truncated);
        }
    }

    function test_theTopBarFitsAtTheSmallestWidth_data(): var {
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

    function test_theTopBarFitsAtTheSmallestWidth(data: var): void {
        Localized.czech = data.czech;
        Fixture.selectCategory(6);
        Fixture.activate("An Application With a Very Long Name Indeed, Longer Than Any Bar");
        const bar = findAll(item, candidate => candidate instanceof TopBar)[0];
        verify(item.width === 980);
        for (const label of findAll(bar, candidate => candidate instanceof PlainLabel && candidate.text.length > 0)) {
            const left = label.mapToItem(bar, 0, 0).x;
            verify(left >= 0 && left + label.width <= bar.width, label.text);
            verify(label.width > 0, label.text);
        }
        const importLabel = findAll(bar, candidate => candidate instanceof ImportMenu)[0];
        verify(importLabel.width >= importLabel.implicitWidth);
        mouseClick(importLabel);
        tryVerify(() => findAll(item.Window.window.contentItem, candidate => candidate instanceof AppMenuItem).length === 2);
        for (const entry of findAll(item.Window.window.contentItem, candidate => candidate instanceof AppMenuItem)) {
            const left = entry.mapToItem(item, 0, 0).x;
            verify(left >= 0 && left + entry.width <= item.width, entry.label);
        }
        keyClick(Qt.Key_Escape);
    }

    function test_aRevealedShortcutIsCurrentAndHasTheFocus(): void {
        mouseClick(named("Practice"));
        Fixture.appModel.search = "nothing has this";
        Fixture.addCustom("Far Down", ["⌘", "D"]);
        Fixture.suggest("Far Down");
        Fixture.noticeController.openShortcut();
        tryVerify(() => card("Far Down")?.activeFocus ?? false);
        const found = card("Far Down");
        const library = findAll(item, candidate => candidate instanceof ShortcutGrid)[0];
        const top = found.mapToItem(library, 0, 0).y;
        verify(top >= 0 && top + found.height <= library.height);
        compare(findAll(found, candidate => candidate instanceof FocusRing && candidate.visible).length, 1);
        compare(Fixture.libraryOpenings, 1);
    }

    function test_aRevealedShortcutStaysInViewWhileTheWindowGetsItsSize(): void {
        Fixture.addCustom("Far Down", ["⌘", "D"]);
        Fixture.suggest("Far Down");
        item.height = 500;
        Fixture.noticeController.openShortcut();
        item.width = 1500;
        item.height = 640;
        tryVerify(() => card("Far Down") !== null);
        const library = findAll(item, candidate => candidate instanceof ShortcutGrid)[0];
        tryVerify(() => {
            const top = card("Far Down").mapToItem(library, 0, 0).y;
            return top >= 0 && top + card("Far Down").height <= library.height;
        });
    }

    function test_revealingAShortcutThatIsGoneDoesNothing(): void {
        const before = cardTitles();
        Fixture.appModel.revealShortcut("no such shortcut");
        compare(cardTitles(), before);
    }

    function test_theTrustPromptAsksAndAllows(): void {
        Fixture.askForTrust();
        tryVerify(() => hasText("May Keyvora read other apps’ menus?"));
        mouseClick(named("Allow"));
        tryVerify(() => !hasText("May Keyvora read other apps’ menus?"));
        compare(Fixture.trustGrants, 1);
        verify(!Fixture.trustController.isAsked);
    }

    function test_theTrustPromptTakesNoForAnAnswer_data(): var {
        return [
            {
                "tag": "button"
            },
            {
                "tag": "escape"
            }
        ];
    }

    function test_theTrustPromptTakesNoForAnAnswer(data: var): void {
        Localized.czech = true;
        Fixture.askForTrust();
        tryVerify(() => hasText("Smí Keyvora číst menu jiných aplikací?"));
        verify(named("Povolit"));
        if (data.tag === "button")
            mouseClick(named("Teď ne"));
        else
            keyClick(Qt.Key_Escape);
        tryVerify(() => !hasText("Smí Keyvora číst menu jiných aplikací?"));
        compare(Fixture.trustGrants, 0);
        verify(!Fixture.trustController.isAsked);
        Fixture.askForTrust();
        tryVerify(() => hasText("Smí Keyvora číst menu jiných aplikací?"));
        keyClick(Qt.Key_Escape);
    }

    function test_theTrustPromptWaitsForTheOpenSheet(): void {
        mouseClick(named("Add Custom"));
        tryVerify(() => hasText("Add Custom Shortcut"));
        Fixture.askForTrust();
        verify(hasText("Add Custom Shortcut"));
        verify(!hasText("May Keyvora read other apps’ menus?"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => hasText("May Keyvora read other apps’ menus?"));
        verify(!hasText("Add Custom Shortcut"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !hasText("May Keyvora read other apps’ menus?"));
    }

    function test_theSettingsGiveWayToTheTrustPromptAndComeBack_data(): var {
        return [
            {
                "tag": "allowed",
                "answer": "Allow",
                "grants": 1
            },
            {
                "tag": "declined",
                "answer": "Not Now",
                "grants": 0
            }
        ];
    }

    function test_theSettingsGiveWayToTheTrustPromptAndComeBack(data: var): void {
        Fixture.setTrusted(false);
        mouseClick(named("Settings"));
        tryVerify(() => hasText("Čeština"));
        mouseClick(named("Allow in Accessibility…"));
        tryVerify(() => hasText("May Keyvora read other apps’ menus?"));
        verify(!hasText("Čeština"));
        mouseClick(named(data.answer));
        tryVerify(() => hasText("Čeština"));
        verify(!hasText("May Keyvora read other apps’ menus?"));
        compare(Fixture.trustGrants, data.grants);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !hasText("Čeština"));
    }

    function test_aWindowThatComesLaterAsksToo(): void {
        Fixture.askForTrust();
        keyClick(Qt.Key_Escape);
        tryVerify(() => !Fixture.trustController.isAsked);
        Fixture.askForTrust();
        item.destroy();
        const other = createTemporaryObject(subject, root);
        root.item = other;
        tryVerify(() => hasText("May Keyvora read other apps’ menus?"));
        keyClick(Qt.Key_Escape);
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

    function test_theKeyboardScrollsWhatIsWiderThanTheWindow(): void {
        const viewport = findChild(item, "viewport");
        const cut = Theme.leastPageWidth - 640;
        verify(!viewport.interactive);
        item.width = 640;
        compare(viewport.contentX, 0);
        verify(viewport.interactive);
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(viewport.contentX > 0 && viewport.contentX <= cut);
        const search = item.Window.activeFocusItem;
        verify(search.mapToItem(item, search.width, 0).x <= item.width);
        Theme.showsFocus = true;
        const sidebar = findAll(item, candidate => candidate instanceof Sidebar)[0];
        for (let i = 0; i < 20 && !sidebar.activeFocus; ++i)
            keyClick(Qt.Key_Tab);
        verify(sidebar.activeFocus);
        compare(viewport.contentX, 0);
    }

    function test_allSectionsAreReachedInALowWindow(): void {
        item.height = 300;
        const sidebar = findAll(item, candidate => candidate instanceof Sidebar)[0];
        const list = findAll(sidebar, candidate => candidate instanceof ListView)[0];
        verify(list.height > 60);
        list.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_End);
        const row = list.currentItem;
        compare(row.title, "Pro Tools");
        const bottom = row.mapToItem(list, 0, row.height).y;
        verify(bottom > 0 && bottom <= list.height);
        verify(named("Settings").mapToItem(item, 0, 0).y < item.height - 20);
    }

    SignalSpy {
        id: quitSpy
        target: Fixture.appMenu
        signalName: "quitRequested"
    }

    name: "ContentView"
    subject: Component {
        ContentView {
            width: root.width
            height: root.height
            appModel: Fixture.appModel
            sections: Fixture.sections
            learning: Fixture.learning
            sheets: Fixture.sheets
            settings: Fixture.settings
            customs: Fixture.customs
            appMenu: Fixture.appMenu
            trust: Fixture.trustController
            updates: Fixture.updates
            keyReader: Fixture.keyReader
            isFirstTime: root.isFirstTime
        }
    }
}
