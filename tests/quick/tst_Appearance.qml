// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

// What the desktop's wishes for contrast and stillness do to the screens.
KeyvoraTestCase {
    id: root

    property Component shown: library

    // The brightness of a colour as the Web Content Accessibility Guidelines count it.
    function luminance(of: color): real {
        const linear = part => part <= 0.03928 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
        return 0.2126 * linear(of.r) + 0.7152 * linear(of.g) + 0.0722 * linear(of.b);
    }

    function contrast(one: color, other: color): real {
        const both = [luminance(one), luminance(other)].sort((a, b) => b - a);
        return (both[0] + 0.05) / (both[1] + 0.05);
    }

    // The widths that the card of a shortcut takes on while the pointer comes to it, and after that.
    function widthsWhileHovered(): list<real> {
        const card = findAll(root.card("Copy"), candidate => candidate instanceof Card)[0];
        const widths = [];
        const note = () => widths.push(card.width);
        card.widthChanged.connect(note);
        mouseMove(card, card.width / 2, card.height / 2);
        tryVerify(() => card.elevation === 1 && card.width === Math.round(root.card("Copy").width * 1.012));
        card.widthChanged.disconnect(note);
        return widths;
    }

    function test_aCardGrowsAtOnceWhereMotionIsReduced(): void {
        Theme.reducedMotion = true;
        const widths = widthsWhileHovered();
        compare(widths.length, 1);
    }

    function test_aCardGrowsStepByStepElsewhere(): void {
        verify(widthsWhileHovered().length > 1);
    }

    function test_aSwitchTurnsAtOnceWhereMotionIsReduced(): void {
        Theme.reducedMotion = true;
        root.item.show(switchComponent);
        const control = findAll(root.item, candidate => candidate instanceof SettingsSwitch)[0];
        const knob = findAll(control, candidate => candidate instanceof SwitchTrack)[0].children[0];
        compare(knob.x, 2);
        const places = [];
        knob.xChanged.connect(() => places.push(knob.x));
        control.isOn = true;
        compare(places, [16]);
    }

    function test_textStandsOutFromWhatItIsOn_data(): list<var> {
        return [
            {
                "tag": "light",
                "dark": false
            },
            {
                "tag": "dark",
                "dark": true
            }
        ];
    }

    function test_textStandsOutFromWhatItIsOn(data: var): void {
        Theme.dark = data.dark;
        Theme.highContrast = true;
        for (const surface of [Theme.base, Theme.sheet, Theme.card, Theme.floating]) {
            for (const ink of [Theme.ink, Theme.secondaryInk, Theme.tertiaryInk, Theme.capOutline, Theme.hairline])
                verify(contrast(ink, surface) >= 7, ink + " on " + surface);
            for (const ink of [Theme.accent, Theme.placeholderInk, Theme.warningInk, Theme.violet])
                verify(contrast(ink, surface) >= 4.5, ink + " on " + surface);
        }
        verify(contrast(Theme.accentInk, Theme.accent) >= 4.5);
    }

    // What is drawn of a colour over another one.
    function over(tint: color, base: color): color {
        const part = (above, below) => above * tint.a + below * (1 - tint.a);
        return Qt.rgba(part(tint.r, base.r), part(tint.g, base.g), part(tint.b, base.b), 1);
    }

    function test_chosenTextStandsOutFromItsTint_data(): list<var> {
        return test_textStandsOutFromWhatItIsOn_data();
    }

    function test_chosenTextStandsOutFromItsTint(data: var): void {
        Theme.dark = data.dark;
        for (const backdrop of [Theme.base, over(Theme.firstGlow, Theme.base)]) {
            const row = over(Theme.softAccent, over(Theme.sidebarGlass, backdrop));
            verify(contrast(Theme.accentText, row) >= 4.5, "row on " + backdrop);
            verify(contrast(Theme.accentText, over(Theme.capFill, over(Theme.glass, backdrop))) >= 4.5, "key on " + backdrop);
        }
    }

    function test_keysThatDoSomethingAreToldByMoreThanTheirColour(): void {
        Theme.highContrast = true;
        root.item.show(keysComponent);
        const keys = findAll(root.item, candidate => candidate instanceof DrawnKey);
        compare(keys.length, 2);
        verify(keys[0].available && !keys[1].available);
        verify(keys[0].background.borderWidth > keys[1].background.borderWidth);
        verify(keys[0].contentItem.font.weight > keys[1].contentItem.font.weight);
    }

    function test_whatIsWrittenIntoIsToldByMoreThanItsColour(): void {
        Theme.highContrast = true;
        root.item.show(fieldComponent);
        const field = findAll(root.item, candidate => candidate instanceof FormTextField)[0];
        const before = field.background.borderWidth;
        field.forceActiveFocus();
        verify(field.background.borderWidth > before);
    }

    function test_aSymbolTakesItsPlaceWhateverItsImageHas(): void {
        root.item.show(symbolComponent);
        const symbol = findAll(root.item, candidate => candidate instanceof Symbol)[0];
        compare(symbol.implicitWidth, 13);
        compare(symbol.implicitHeight, 13);
    }

    function cleanup(): void {
        Theme.dark = false;
        Theme.highContrast = false;
        Theme.reducedMotion = false;
        mouseMove(root, 979, 677);
    }

    name: "Appearance"
    subject: Component {
        Rectangle {
            id: stage

            function show(what: Component): void {
                loader.sourceComponent = what;
            }

            width: root.width
            height: root.height
            color: "white"

            Loader {
                id: loader
                anchors.fill: parent
                sourceComponent: root.shown
            }
        }
    }

    Component {
        id: library

        LibraryView {
            appModel: Fixture.appModel
        }
    }
    Component {
        id: switchComponent

        Item {
            SettingsSwitch {
                width: 300
                text: "On"
                isOn: false
            }
        }
    }
    Component {
        id: keysComponent

        Row {
            DrawnKey {
                width: 50
                height: 44
                token: "T"
                available: true
            }
            DrawnKey {
                width: 50
                height: 44
                token: "7"
            }
        }
    }
    Component {
        id: fieldComponent

        Item {
            FormTextField {
                width: 200
                name: "Title"
            }
        }
    }
    Component {
        id: symbolComponent

        Item {
            Symbol {
                name: ""
                size: 13
            }
        }
    }
}
