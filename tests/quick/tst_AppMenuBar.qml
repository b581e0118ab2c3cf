// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function titles(): list<string> {
        return findAll(item, candidate => candidate instanceof AppMenuTitle).map(title => title.text);
    }

    function openItems(): list<string> {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof AppMenuItem).map(entry => entry.label + "|" + entry.keysText);
    }

    function test_menusHoldTheirCommands_data(): var {
        return [
            {
                "title": "Keyvora",
                "english": ["About Keyvora|", "Quit Keyvora|Ctrl+Q"],
                "czech": ["O aplikaci Keyvora|", "Ukončit Keyvora|Ctrl+Q"]
            },
            {
                "title": "Edit",
                "english": ["Cut|Ctrl+X", "Copy|Ctrl+C", "Paste|Ctrl+V", "Select All|Ctrl+A"],
                "czech": ["Vyjmout|Ctrl+X", "Kopírovat|Ctrl+C", "Vložit|Ctrl+V", "Vybrat vše|Ctrl+A"]
            },
            {
                "title": "Window",
                "english": ["Close|Ctrl+W", "Minimize|Ctrl+M"],
                "czech": ["Zavřít|Ctrl+W", "Minimalizovat|Ctrl+M"]
            }
        ];
    }

    function test_menusHoldTheirCommands(data: var): void {
        mouseClick(named(data.title));
        tryVerify(() => openItems().length > 0);
        compare(openItems(), data.english);
        Localized.czech = true;
        Fixture.installMenu();
        compare(openItems(), data.czech);
        keyClick(Qt.Key_Escape);
    }

    function test_textsStayUntilTheMenuIsInstalledAnew(): void {
        compare(titles(), ["Keyvora", "Edit", "Window"]);
        Localized.czech = true;
        compare(titles(), ["Keyvora", "Edit", "Window"]);
        Fixture.installMenu();
        compare(titles(), ["Keyvora", "Úpravy", "Okno"]);
    }

    function test_controlQAsksToQuit(): void {
        quitSpy.clear();
        keyClick(Qt.Key_Q, Qt.ControlModifier);
        compare(quitSpy.count, 1);
    }

    function test_oneMenuIsOpenAtATime(): void {
        keyClick(Qt.Key_F10);
        tryVerify(() => openItems()[0] === "About Keyvora|");
        keyClick(Qt.Key_Right);
        tryVerify(() => openItems().length === 4 && openItems()[0] === "Cut|Ctrl+X");
        keyClick(Qt.Key_Left);
        tryVerify(() => openItems().length === 2 && openItems()[0] === "About Keyvora|");
        keyClick(Qt.Key_Left);
        tryVerify(() => openItems().length === 2 && openItems()[0] === "Close|Ctrl+W");
        keyClick(Qt.Key_Escape);
        tryVerify(() => openItems().length === 0);
    }

    function highlighted(): list<string> {
        return findAll(item.Window.window.contentItem, candidate => candidate instanceof AppMenuItem && candidate.highlighted).map(entry => entry.label);
    }

    function test_aMenuOpenedWithTheKeyboardBeginsAtItsFirstCommand(): void {
        Theme.showsFocus = true;
        aboutSpy.target = item;
        aboutSpy.clear();
        keyClick(Qt.Key_F10);
        tryVerify(() => highlighted()[0] === "About Keyvora");
        // The edit menu has nothing to do while no text is edited.
        keyClick(Qt.Key_Right);
        tryVerify(() => openItems().length === 4);
        compare(highlighted(), []);
        keyClick(Qt.Key_Right);
        tryVerify(() => highlighted()[0] === "Close");
        keyClick(Qt.Key_Right);
        tryVerify(() => highlighted()[0] === "About Keyvora");
        keyClick(Qt.Key_Return);
        compare(aboutSpy.count, 1);
        tryVerify(() => openItems().length === 0);
    }

    function test_aMenuOpenedWithTheMouseBeginsNowhere(): void {
        Theme.showsFocus = false;
        mouseClick(named("Window"));
        tryVerify(() => openItems().length === 2);
        compare(highlighted(), []);
        keyClick(Qt.Key_Escape);
        tryVerify(() => openItems().length === 0);
    }

    SignalSpy {
        id: aboutSpy
        signalName: "aboutRequested"
    }
    SignalSpy {
        id: quitSpy
        target: Fixture.appMenu
        signalName: "quitRequested"
    }

    name: "AppMenuBar"
    subject: Component {
        AppMenuBar {
            width: 980
            appMenu: Fixture.appMenu
        }
    }
}
