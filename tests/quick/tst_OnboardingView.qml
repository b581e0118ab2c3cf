// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property OnboardingView sheet: item?.sheet ?? null
    readonly property list<string> english: ["Welcome to Keyvora", "A few things worth knowing right away.", "Search the whole library", "⌃⌥Space from anywhere", "Hold ⌃⌥ for a quick peek", "Practice and learn", "Make it yours", "Get Started"]
    readonly property list<string> czech: ["Vítej v appce Keyvora", "Pár věcí, co stojí za to hned vědět.", "Prohledej celou knihovnu", "⌃⌥Mezerník odkudkoli", "Podrž ⌃⌥ pro bleskový přehled", "Procvičuj a uč se", "Přizpůsob si to", "Začít"]

    // Everything of the sheet, which is drawn above the window's content.
    function all(fits: var): list<Item> {
        return findAll(item.Window.window.contentItem, fits);
    }

    function label(text: string): PlainLabel {
        return all(candidate => candidate instanceof PlainLabel && candidate.text === text)[0];
    }

    function rows(): list<Item> {
        return all(candidate => candidate instanceof OnboardingRow);
    }

    function open(): void {
        sheet.open();
        tryVerify(() => sheet.opened);
    }

    function test_textsAreThereInBothLanguages(): void {
        open();
        for (const text of root.english)
            verify(hasText(text), text);
        Localized.czech = true;
        for (const text of root.czech)
            verify(hasText(text), text);
    }

    function test_fiveThingsAreWorthKnowing(): void {
        const things = [["search", "Search the whole library", "Hundreds of shortcuts by category, favorites, and modifier filters.", "Prohledej celou knihovnu", "Stovky zkratek podle kategorií, oblíbené a filtr podle modifikátoru."], ["keyboard", "⌃⌥Space from anywhere", "Opens the full library no matter what app you're in.", "⌃⌥Mezerník odkudkoli", "Otevře celou knihovnu, ať jsi v jakékoli aplikaci."], ["touch_app", "Hold ⌃⌥ for a quick peek", "A short hold shows tips for the active app, then disappears.", "Podrž ⌃⌥ pro bleskový přehled", "Krátké podržení ukáže tipy pro právě aktivní aplikaci a zase zmizí."], ["psychology", "Practice and learn", "The app remembers what trips you up and drills it more.", "Procvičuj a uč se", "Appka si pamatuje, co ti nejde, a víc to procvičuje."], ["add_box", "Make it yours", "Add your own shortcuts or import them from other apps' menus.", "Přizpůsob si to", "Přidej vlastní zkratky nebo je naimportuj z menu jiných aplikací."]];
        open();
        compare(rows().map(row => [row.symbol, row.title, row.detail]), things.map(thing => thing.slice(0, 3)));
        Localized.czech = true;
        compare(rows().map(row => [row.symbol, row.title, row.detail]), things.map(thing => [thing[0], thing[3], thing[4]]));
    }

    function test_textsAreWhole_data(): list<var> {
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

    function test_textsAreWhole(data: var): void {
        open();
        Localized.czech = data.czech;
        waitForRendering(root.item);
        const labels = all(candidate => candidate instanceof PlainLabel && candidate.text.length > 0);
        compare(labels.length, 2 + 2 * 5 + 1);
        for (const label of labels)
            verify(!label.truncated && label.contentWidth <= label.width + 0.5, label.text);
    }

    function test_measures(): void {
        open();
        compare(sheet.width, 460);
        compare(sheet.padding, 26);
        compare(label("Welcome to Keyvora").size, 22);
        compare(label("Welcome to Keyvora").font.weight, 700);
        compare(label("A few things worth knowing right away.").size, 13);
        compare(rows().length, 5);
        for (const row of rows()) {
            const title = label(row.title);
            const detail = label(row.detail);
            compare(title.size, 13);
            compare(title.font.weight, Theme.strongWeight);
            compare(detail.size, 11.5);
            compare(row.children[0].width, 24);
            compare(findAll(row, candidate => candidate instanceof Symbol)[0].size, 16);
        }
    }

    function test_scrollsInALowWindow(): void {
        open();
        const body = findChild(sheet.contentItem, "sheetBody");
        verify(!body.interactive);
        compare(sheet.height, sheet.implicitContentHeight + 2 * sheet.padding);
        sheet.height = 250;
        verify(body.interactive);
        // The beginning shows first, and all is drawn as large as ever.
        compare(body.contentY, 0);
        compare(label("Make it yours").height, label("Practice and learn").height);
        keyClick(Qt.Key_PageDown);
        keyClick(Qt.Key_PageDown);
        compare(body.contentY, body.contentHeight - body.height);
        const button = named("Get Started");
        verify(button.mapToItem(body, 0, button.height).y <= body.height);
        keyClick(Qt.Key_Up);
        verify(body.contentY < body.contentHeight - body.height);
    }

    function test_theButtonCloses(): void {
        open();
        mouseClick(named("Get Started"));
        tryVerify(() => !sheet.visible);
    }

    function test_keysClose_data(): list<var> {
        return [
            {
                "tag": "Return",
                "key": Qt.Key_Return
            },
            {
                "tag": "Space",
                "key": Qt.Key_Space
            },
            {
                "tag": "Escape",
                "key": Qt.Key_Escape
            }
        ];
    }

    function test_keysClose(data: var): void {
        open();
        tryVerify(() => named("Get Started").activeFocus);
        keyClick(data.key);
        tryVerify(() => !sheet.visible);
    }

    function test_screenReadersAreToldTheRows(): void {
        open();
        compare(named("Practice and learn").Accessible.description, "The app remembers what trips you up and drills it more.");
    }

    name: "OnboardingView"
    subject: Component {
        Item {
            readonly property alias sheet: subjectSheet

            width: root.width
            height: root.height

            OnboardingView {
                id: subjectSheet
            }
        }
    }
}
