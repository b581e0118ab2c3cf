// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property SettingsView sheet: item?.sheet ?? null
    readonly property Item content: item?.Window.window?.contentItem ?? null

    function open(): void {
        sheet.open();
        tryVerify(() => sheet.opened);
        waitForRendering(item);
    }

    function switchNamed(name: string): SettingsSwitch {
        return findAll(content, candidate => candidate instanceof SettingsSwitch && candidate.text === name)[0] as SettingsSwitch;
    }

    function list(): ListView {
        return findAll(content, candidate => candidate.objectName === "settingsList")[0] as ListView;
    }

    function scrollDown(): void {
        list().positionViewAtEnd();
        waitForItemPolished(list());
    }

    function rows(): list<Item> {
        scrollDown();
        return findAll(content, candidate => candidate instanceof CustomShortcutRow).sort((a, b) => a.y - b.y);
    }

    function titles(): list<string> {
        return rows().map(row => row.title);
    }

    function customTitles(): list<string> {
        return Fixture.customShortcuts().map(shortcut => shortcut.title);
    }

    function deleteButton(title: string): Item {
        scrollDown();
        return named("Delete “" + title + "”");
    }

    function undoBar(): UndoBar {
        return findAll(content, candidate => candidate instanceof UndoBar)[0] as UndoBar ?? null;
    }

    function test_everyTextIsThereInBothLanguages_data(): var {
        return [
            {
                "tag": "English",
                "czech": false,
                "texts": ["Settings", "Language", "Behavior", "Launch Keyvora at login", "Smart suggestions from menu items you use",
                          "Learning mode – show a tip on first mouse use", "Privacy & Permissions",
                          "Smart suggestions and holding ⌃⌥ for a quick shortcut peek need Accessibility permission. Document content is never read and no data leaves your Mac. Restart the app after allowing it for the change to take effect.",
                          "Allow in Accessibility…", "Backup & Transfer",
                          "Automatic sync between Macs isn't available yet. You can move your custom shortcuts and favorites manually via a file.",
                          "Export Backup…", "Import Backup…", "Custom Shortcuts"]
            },
            {
                "tag": "Czech",
                "czech": true,
                "texts": ["Nastavení", "Jazyk", "Chování", "Spouštět Keyvora po přihlášení", "Chytré návrhy podle použitých položek menu",
                          "Učební režim – zobrazovat tip už při prvním použití myši", "Soukromí a oprávnění",
                          "Chytré návrhy a podržení ⌃⌥ pro rychlý přehled zkratek potřebují oprávnění Zpřístupnění. Obsah dokumentů se nečte a žádná data neopouštějí Mac. Po povolení appku restartuj, ať se projeví.",
                          "Povolit ve Zpřístupnění…", "Záloha a přenos",
                          "Automatická synchronizace mezi Macy zatím není k dispozici. Vlastní zkratky a oblíbené si můžeš přenést ručně přes soubor.",
                          "Exportovat zálohu…", "Importovat zálohu…", "Vlastní zkratky"]
            }
        ];
    }

    function test_everyTextIsThereInBothLanguages(data: var): void {
        open();
        Localized.czech = data.czech;
        for (const text of data.texts)
            verify(hasText(text), text);
        verify(hasText("🇨🇿 Čeština"));
        verify(hasText("🇬🇧 English"));
        scrollDown();
        verify(hasText(Fixture.settings.versionLabel));
    }

    function test_theVersionLabelNamesProgramVersionAndBuild(): void {
        compare(Fixture.settings.versionLabel, "Keyvora " + Qt.application.version + " (1)");
        verify(Qt.application.version.length > 0);
    }

    function test_nothingIsWiderThanTheSheet_data(): var {
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

    function test_nothingIsWiderThanTheSheet(data: var): void {
        Localized.czech = data.czech;
        open();
        for (const label of findAll(list(), candidate => candidate instanceof Text && candidate.text.length > 0)) {
            const left = label.mapToItem(list(), 0, 0).x;
            verify(left >= 18 && left + label.width <= list().width - 18, label.text);
            verify(!label.truncated, label.text);
        }
    }

    function test_switchesShowAndSetTheModelsValues(): void {
        open();
        const login = switchNamed("Launch Keyvora at login");
        const smart = switchNamed("Smart suggestions from menu items you use");
        const learning = switchNamed("Learning mode – show a tip on first mouse use");
        verify(!login.checked && smart.checked && !learning.checked);
        for (const control of [login, smart, learning])
            mouseClick(control);
        verify(Fixture.settings.launchAtLogin && !Fixture.settings.smartSuggestions && Fixture.settings.learningMode);
        verify(login.checked && !smart.checked && learning.checked);
        for (const control of [login, smart, learning]) {
            control.forceActiveFocus();
            keyClick(Qt.Key_Space);
        }
        verify(!login.checked && smart.checked && !learning.checked);
        verify(!Fixture.settings.launchAtLogin && Fixture.settings.smartSuggestions && !Fixture.settings.learningMode);
        Fixture.settings.setLearningMode(true);
        verify(learning.checked);
    }

    function test_aSwitchThatIsRefusedPutsItselfBackAndSaysWhy(): void {
        Fixture.refuseLoginItem("Permission denied");
        open();
        const login = switchNamed("Launch Keyvora at login");
        mouseClick(login);
        tryVerify(() => hasText("Couldn't change the setting"));
        verify(hasText("Permission denied"));
        verify(!login.checked);
        verify(!Fixture.settings.launchAtLogin);
        keyClick(Qt.Key_Return);
        tryVerify(() => !hasText("Couldn't change the setting"));
        verify(sheet.opened);
        Fixture.settings.setLearningMode(true);
        verify(!login.checked);
    }

    function test_aRefusalWithoutAReasonIsAnUnknownError(): void {
        Fixture.refuseLoginItem("");
        open();
        mouseClick(switchNamed("Launch Keyvora at login"));
        tryVerify(() => hasText("Unknown error"));
        Localized.czech = true;
        verify(hasText("Nastavení se nepodařilo změnit"));
        verify(hasText("Neznámá chyba"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !hasText("Neznámá chyba"));
        verify(sheet.opened);
    }

    function test_aReasonIsNeverTakenForMarkup(): void {
        Fixture.refuseLoginItem("<b>no</b>");
        open();
        mouseClick(switchNamed("Launch Keyvora at login"));
        tryVerify(() => hasText("<b>no</b>"));
        compare(findAll(content, candidate => candidate.text === "<b>no</b>")[0].textFormat, Text.PlainText);
        keyClick(Qt.Key_Escape);
    }

    function test_aSwitchThatTheDesktopIgnoresShowsWhatIs(): void {
        Fixture.ignoreLoginItem();
        open();
        const login = switchNamed("Launch Keyvora at login");
        mouseClick(login);
        verify(!login.checked);
        verify(!hasText("Couldn't change the setting"));
    }

    function test_trustIsAskedForWhereItIsMissing(): void {
        Fixture.setTrusted(false);
        open();
        mouseClick(named("Allow in Accessibility…"));
        tryVerify(() => Fixture.trustController.isAsked);
        verify(!hasText("Already allowed."));
    }

    function test_trustThatIsThereIsSaidSo(): void {
        open();
        verify(!hasText("Already allowed."));
        mouseClick(named("Allow in Accessibility…"));
        tryVerify(() => hasText("Already allowed."));
        verify(!Fixture.trustController.isAsked);
        Localized.czech = true;
        verify(hasText("Oprávnění už je uděleno."));
    }

    function test_backupsSayWhatCameOfThem(): void {
        open();
        const save = named("Export Backup…");
        const load = named("Import Backup…");
        const outcome = (button, isDone) => {
            mouseClick(button);
            Fixture.endBackup(isDone);
        };
        outcome(save, true);
        verify(hasText("Backup saved."));
        outcome(load, false);
        verify(hasText("Couldn't read the file."));
        verify(!hasText("Backup saved."));
        outcome(load, true);
        verify(hasText("Backup imported."));
        Localized.czech = true;
        verify(hasText("Záloha načtena."));
        outcome(load, false);
        verify(hasText("Soubor se nepodařilo načíst."));
        outcome(save, true);
        verify(hasText("Záloha uložena."));
        Localized.czech = false;
        outcome(save, false);
        compare(findAll(content, candidate => candidate instanceof MessageLine).length, 0);
    }

    function test_oneBackupAtATime(): void {
        open();
        mouseClick(named("Import Backup…"));
        mouseClick(named("Import Backup…"));
        mouseClick(named("Export Backup…"));
        compare(Fixture.backups, 1);
        Fixture.endBackup(true);
        verify(hasText("Backup imported."));
        mouseClick(named("Export Backup…"));
        compare(Fixture.backups, 2);
        Fixture.endBackup(true);
    }

    function test_whatWasSaidIsForgottenWhenTheSheetOpensAgain(): void {
        open();
        mouseClick(named("Export Backup…"));
        Fixture.endBackup(true);
        verify(hasText("Backup saved."));
        Fixture.settings.begin();
        verify(!hasText("Backup saved."));
    }

    function test_ownShortcutsAreListedWithWhatTheyCollideWith(): void {
        Fixture.addCustom("Mine", ["⌃", "⌥", "9"]);
        Fixture.addCustom("Other Copy", ["⌘", "C"]);
        open();
        compare(titles(), ["Mine", "Other Copy"]);
        compare(rows().map(row => row.conflictTitle), ["", "Copy"]);
        verify(hasText("Conflicts with “Copy”"));
        verify(rows()[1].Accessible.description.endsWith("Conflicts with “Copy”"));
        Localized.czech = true;
        verify(hasText("Koliduje s „Kopírovat“"));
        Fixture.addCustom("Nine", ["9", "⌥", "⌃"]);
        compare(rows().map(row => row.conflictTitle), ["Nine", "Kopírovat", "Mine"]);
    }

    function test_withoutOwnShortcutsThereIsALineThatSaysSo(): void {
        open();
        scrollDown();
        verify(hasText("None yet. Add your own, or import them from other apps' menus."));
        Fixture.addCustom("Mine", ["⌘", "9"]);
        tryVerify(() => !hasText("None yet. Add your own, or import them from other apps' menus."));
    }

    function test_whatIsDeletedCanBePutBack(): void {
        for (const title of ["First", "Second", "Third"])
            Fixture.addCustom(title, ["⌘", title]);
        open();
        compare(undoBar(), null);
        mouseClick(deleteButton("Second"));
        compare(customTitles(), ["First", "Third"]);
        compare(titles(), ["First", "Third"]);
        verify(hasText("“Second” was deleted."));
        Localized.czech = true;
        verify(hasText("Zkratka „Second“ byla smazána."));
        verify(named("Vrátit zpět"));
        Localized.czech = false;
        mouseClick(named("Undo"));
        compare(customTitles(), ["First", "Second", "Third"]);
        compare(undoBar(), null);
    }

    function test_severalDeletionsArePutBackOneByOne(): void {
        for (const title of ["First", "Second", "Third"])
            Fixture.addCustom(title, ["⌘", title]);
        open();
        mouseClick(deleteButton("First"));
        mouseClick(deleteButton("Third"));
        compare(customTitles(), ["Second"]);
        verify(hasText("“Third” was deleted."));
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        compare(customTitles(), ["Second", "Third"]);
        verify(hasText("“First” was deleted."));
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        compare(customTitles(), ["First", "Second", "Third"]);
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        compare(customTitles(), ["First", "Second", "Third"]);
    }

    function test_theOfferToPutBackEndsAfterAWhile(): void {
        compare(Fixture.customs.undoTime, 8000);
        Fixture.customs.undoTime = 1;
        Fixture.addCustom("Mine", ["⌘", "9"]);
        open();
        mouseClick(deleteButton("Mine"));
        tryCompare(Fixture.customs, "canUndo", false);
        compare(undoBar(), null);
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        compare(customTitles(), []);
    }

    function test_deletingByKeyboardGoesOnToTheNextShortcut(): void {
        for (const title of ["First", "Second", "Third"])
            Fixture.addCustom(title, ["⌘", title]);
        Theme.showsFocus = true;
        open();
        deleteButton("Second").forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(titles(), ["First", "Third"]);
        verify(deleteButton("Third").activeFocus);
        keyClick(Qt.Key_Delete);
        verify(deleteButton("First").activeFocus);
        keyClick(Qt.Key_Space);
        compare(titles(), []);
        verify(named("Undo").activeFocus);
        keyClick(Qt.Key_Return);
        compare(customTitles(), ["First"]);
        verify(named("Undo").activeFocus);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Return);
        compare(undoBar(), null);
        verify(item.Window.activeFocusItem.visible);
        verify(item.Window.activeFocusItem.label.startsWith("Delete “"));
    }

    function test_anAmpersandInATitleMakesNoKey(): void {
        Fixture.addCustom("R&D", ["⌘", "R"]);
        open();
        verify(deleteButton("R&D") !== null);
        keyClick(Qt.Key_D, Qt.AltModifier);
        compare(titles(), ["R&D"]);
    }

    function test_aDeletionThatCanNoLongerBeUndoneLeavesTheKeyboardInTheList(): void {
        Fixture.customs.undoTime = 300000;
        for (const title of ["First", "Second"])
            Fixture.addCustom(title, ["⌘", title]);
        Theme.showsFocus = true;
        open();
        deleteButton("First").forceActiveFocus();
        keyClick(Qt.Key_Delete);
        named("Undo").forceActiveFocus(Qt.TabFocusReason);
        Fixture.customs.undo();
        compare(undoBar(), null);
        verify(item.Window.activeFocusItem.visible);
        verify(item.Window.activeFocusItem.label.startsWith("Delete “"));
    }

    function test_withoutShortcutsTheKeyboardGoesOnToWhatShows(): void {
        Fixture.customs.undoTime = 1;
        Fixture.addCustom("Mine", ["⌘", "9"]);
        Theme.showsFocus = true;
        open();
        deleteButton("Mine").forceActiveFocus();
        keyClick(Qt.Key_Delete);
        tryCompare(Fixture.customs, "canUndo", false);
        verify(named("Close").activeFocus);
    }

    function test_aKeyThatIsHeldDeletesOne(): void {
        for (const title of ["First", "Second", "Third"])
            Fixture.addCustom(title, ["⌘", title]);
        Theme.showsFocus = true;
        open();
        const button = deleteButton("First");
        button.press({
            "isAutoRepeat": true
        });
        compare(customTitles().length, 3);
        button.press({
            "isAutoRepeat": false
        });
        compare(customTitles(), ["Second", "Third"]);
    }

    function test_hundredsOfShortcutsAreNoneTooMany(): void {
        for (let i = 0; i < 400; ++i)
            Fixture.addCustom("Shortcut " + i, ["⌃", "⌥", "K" + i]);
        open();
        verify(rows().length < 60);
        verify(titles().includes("Shortcut 399"));
    }

    // What has the keyboard, after that it is made sure that it is in view.
    function focusedName(): string {
        const focused = item.Window.activeFocusItem;
        const name = focused.Accessible.name;
        if (name !== "Close" && name !== "Undo") {
            const top = focused.mapToItem(list(), 0, 0).y;
            const bar = undoBar();
            const bottom = bar === null ? list().height : bar.mapToItem(list(), 0, 0).y;
            verify(top >= 0 && top + focused.height <= bottom, name);
        }
        return name;
    }

    function test_theKeyboardReachesEverythingInOrderAndTheSheetFollows(): void {
        for (let i = 0; i < 60; ++i)
            Fixture.addCustom("Own " + i, ["⌃", "⌥", "K" + i]);
        open();
        Theme.showsFocus = true;
        const order = ["English", "Launch Keyvora at login", "Smart suggestions from menu items you use",
                       "Learning mode – show a tip on first mouse use", "Allow in Accessibility…", "Export Backup…", "Import Backup…",
                       "Delete “Own 0”", "Close"];
        for (const name of order) {
            compare(focusedName(), name);
            keyClick(Qt.Key_Tab);
        }
        compare(focusedName(), "Čeština");
        for (const name of order.reverse()) {
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            compare(focusedName(), name);
        }
    }

    function test_theArrowKeysGoFromShortcutToShortcut(): void {
        for (let i = 0; i < 60; ++i)
            Fixture.addCustom("Own " + i, ["⌃", "⌥", "K" + i]);
        open();
        Theme.showsFocus = true;
        named("Import Backup…").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        for (let i = 0; i < 59; ++i) {
            compare(focusedName(), "Delete “Own " + i + "”");
            keyClick(Qt.Key_Down);
        }
        compare(focusedName(), "Delete “Own 59”");
        keyClick(Qt.Key_Down);
        compare(focusedName(), "Delete “Own 59”");
        keyClick(Qt.Key_Up);
        compare(focusedName(), "Delete “Own 58”");
        keyClick(Qt.Key_Delete);
        compare(focusedName(), "Delete “Own 59”");
        keyClick(Qt.Key_Up);
        compare(focusedName(), "Delete “Own 57”");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        keyClick(Qt.Key_Down);
        compare(focusedName(), "Delete “Own 58”");
        keyClick(Qt.Key_Delete);
        keyClick(Qt.Key_Tab);
        compare(focusedName(), "Undo");
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        compare(focusedName(), "Delete “Own 59”");
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Tab);
        compare(focusedName(), "Close");
    }

    function test_escapeAndTheButtonClose_data(): var {
        return [
            {
                "tag": "escape"
            },
            {
                "tag": "button"
            }
        ];
    }

    function test_escapeAndTheButtonClose(data: var): void {
        open();
        if (data.tag === "escape")
            keyClick(Qt.Key_Escape);
        else
            mouseClick(named("Close"));
        tryVerify(() => !sheet.visible);
    }

    name: "SettingsView"
    subject: Component {
        Item {
            readonly property alias sheet: subjectSheet

            width: 980
            height: 678

            SettingsView {
                id: subjectSheet
                settings: Fixture.settings
                customs: Fixture.customs
            }
        }
    }
}
