// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function rows(): list<string> {
        return findAll(item, candidate => candidate instanceof SidebarRow).sort((a, b) => a.mapToItem(item, 0, 0).y - b.mapToItem(item, 0, 0).y).map(row => row.label);
    }

    function test_rowsStandInOrderInBothLanguages(): void {
        compare(rows(), ["All Shortcuts", "Favorites", "Visual Keyboard", "Cheat Sheet", "First Aid", "Shortcut of the Day", "Practice", "Basics", "Text", "Windows & Apps", "Finder", "Screenshots", "Browser", "Pro Tools", "Add Custom", "Settings"]);
        for (const heading of ["LIBRARY", "DISCOVER", "CATEGORIES", "Master your Mac"])
            verify(hasText(heading), heading);
        Localized.czech = true;
        compare(rows(), ["Všechny zkratky", "Oblíbené", "Vizuální klávesnice", "Samolepka", "První pomoc", "Dnešní zkratka", "Procvičování", "Základy", "Text", "Okna a aplikace", "Finder", "Snímky obrazovky", "Prohlížeč", "Profesionální nástroje", "Přidat vlastní", "Nastavení"]);
        for (const heading of ["KNIHOVNA", "OBJEVUJ", "KATEGORIE", "Ovládni svůj Mac"])
            verify(hasText(heading), heading);
    }

    function test_rowsHaveTheirSymbols(): void {
        const symbols = findAll(item, candidate => candidate instanceof SidebarRow).sort((a, b) => a.mapToItem(item, 0, 0).y - b.mapToItem(item, 0, 0).y).map(row => row.symbol);
        compare(symbols, ["grid_view", "star-fill", "keyboard", "touch_app", "medical_services-fill", "sunny-fill", "psychology", "wand_stars", "text_select_start", "select_window", "folder", "photo_camera", "public", "service_toolbox-fill", "add_circle", "settings"]);
    }

    function test_clickingARowSelectsIt(): void {
        mouseClick(named("Browser"));
        compare(Fixture.sections.pageTitle, "Browser");
        verify(findAll(item, candidate => candidate instanceof SidebarRow && candidate.label === "Browser")[0].selected);
    }

    function test_arrowsMoveTheSelectionAndStopAtTheEnds(): void {
        mouseClick(named("Favorites"));
        keyClick(Qt.Key_Up);
        compare(Fixture.sections.currentRow, 0);
        keyClick(Qt.Key_Up);
        compare(Fixture.sections.currentRow, 0);
        keyClick(Qt.Key_End);
        compare(Fixture.sections.pageTitle, "Pro Tools");
        keyClick(Qt.Key_Down);
        compare(Fixture.sections.pageTitle, "Pro Tools");
        keyClick(Qt.Key_Home);
        compare(Fixture.sections.pageTitle, "Library");
    }

    function test_theRowFollowsTheModel(): void {
        Fixture.selectCategory(3);
        verify(findAll(item, candidate => candidate instanceof SidebarRow && candidate.label === "Finder")[0].selected);
    }

    function test_theFocusRingShowsForTheKeyboardOnly(): void {
        mouseClick(named("Favorites"));
        const rings = () => findAll(item, candidate => candidate instanceof FocusRing && candidate.visible).length;
        compare(rings(), 0);
        Theme.showsFocus = true;
        compare(rings(), 1);
    }

    function test_anAmpersandInASectionMakesNoKey(): void {
        mouseClick(named("Favorites"));
        verify(named("Windows & Apps") !== null);
        keyClick(Qt.Key_Space, Qt.AltModifier);
        verify(named("Favorites").selected);
    }

    function test_bottomRowsAskForTheirSheets(): void {
        mouseClick(named("Add Custom"));
        compare(added.count, 1);
        mouseClick(named("Settings"));
        compare(settings.count, 1);
        added.clear();
        settings.clear();
    }

    SignalSpy {
        id: added
        target: root.item
        signalName: "addRequested"
    }
    SignalSpy {
        id: settings
        target: root.item
        signalName: "settingsRequested"
    }

    name: "Sidebar"
    subject: Component {
        Sidebar {
            height: 650
            sections: Fixture.sections
        }
    }
}
