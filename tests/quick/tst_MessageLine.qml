// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    readonly property string permission: "Pro import povolte Keyvora Zpřístupnění v Nastavení systému."

    function label(): Item {
        return findAll(item, candidate => candidate instanceof PlainLabel)[0];
    }

    function test_aShortMessageTakesALine(): void {
        item.text = permission;
        compare(label().lineCount, 1);
        compare(item.height, 20);
        verify(!label().truncated);
    }

    function test_aLongMessageTakesTwo(): void {
        item.width = 240;
        item.text = permission;
        compare(label().lineCount, 2);
        verify(!label().truncated);
        verify(item.height >= label().contentHeight);
    }

    function test_anEndlessMessageIsElided(): void {
        item.text = permission.repeat(20);
        compare(label().lineCount, 2);
        verify(label().truncated);
        verify(item.height < 40);
    }

    function test_screenReadersAreTold(): void {
        item.text = permission;
        compare(item.Accessible.role, Accessible.AlertMessage);
        compare(item.Accessible.name, permission);
    }

    function test_nothingToSayShowsNothing(): void {
        item.text = "";
        verify(!item.visible);
    }

    name: "MessageLine"
    subject: Component {
        MessageLine {
            width: 706
            text: "Imported 3 shortcuts from Mousepad."
        }
    }
}
