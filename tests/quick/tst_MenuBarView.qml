// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function test_openLibraryClosesThePanelFirst(): void {
        dismissals.clear();
        mouseClick(named("Open Library"));
        compare(dismissals.count, 1);
        compare(Fixture.libraryOpenings, 1);
    }

    function test_quitEndsTheProgram(): void {
        mouseClick(named("Quit"));
        compare(Fixture.quits, 1);
    }

    function test_escapeCloses(): void {
        dismissals.clear();
        item.forceActiveFocus();
        keyClick(Qt.Key_Escape);
        compare(dismissals.count, 1);
        compare(Fixture.libraryOpenings, 0);
    }

    function test_textsFollowTheLanguage(): void {
        Localized.czech = true;
        verify(named("Otevřít knihovnu"));
        verify(named("Ukončit"));
    }

    SignalSpy {
        id: dismissals
        target: Fixture.panelController
        signalName: "dismissed"
    }

    name: "MenuBarView"
    subject: Component {
        MenuBarView {
            controller: Fixture.panelController
        }
    }
}
