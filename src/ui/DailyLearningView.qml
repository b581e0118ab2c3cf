// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// Today's three shortcuts, and whether they are learned.
ScrollPage {
    id: root

    required property AppModel appModel
    required property DailyLesson lesson

    // The linter knows no integers of 64 bits.
    // qmllint disable type
    readonly property real streak: root.lesson.streak
    // qmllint enable type
    readonly property bool isShown: root.visible && root.Window.visibility !== Window.Hidden && root.Window.visibility !== Window.Minimized
    readonly property bool isInUse: root.isShown && root.Window.active
    readonly property alias followsClock: nextDay.running

    // Shows the lesson of this moment, and the next one when it begins.
    function followClock(): void {
        root.lesson.refresh();
        nextDay.interval = root.lesson.millisecondsToNextDay();
        nextDay.restart();
    }

    onIsShownChanged: {
        if (root.isShown)
            root.followClock();
        else
            nextDay.stop();
    }
    // The timer does not count while the machine sleeps.
    onIsInUseChanged: {
        if (root.isInUse)
            root.followClock();
    }

    Timer {
        id: nextDay
        onTriggered: root.followClock()
    }
    Connections {
        target: root.lesson

        // Of the two that stand in one place, the one that shows has the keyboard.
        function onChanged(): void {
            if (complete.activeFocus && root.lesson.isComplete)
                done.forceActiveFocus(Qt.OtherFocusReason);
            else if (done.activeFocus && !root.lesson.isComplete)
                complete.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    Paragraph {
        topPadding: 5
        text: Localized.czech ? "DNEŠNÍ TROJICE  •  " + root.streak + " dní v řadě" : "TODAY'S TRIO  •  " + root.streak + "-day streak"
        size: 11.5
        color: Theme.violet
        font.weight: Theme.strongWeight
        font.letterSpacing: 0.6
        Accessible.role: Accessible.Heading
    }
    Paragraph {
        text: Localized.czech ? "Jeden základ, jeden tip pro aktivní aplikaci a jedna zkratka podle vašeho používání."
                              : "One basic, one tip for your active app, and one shortcut based on your own usage."
        bottomPadding: 2
        color: Theme.secondaryInk
    }
    CardFlow {
        id: trio
        width: parent.width
        appModel: root.appModel
        shortcuts: root.lesson.trio
    }
    Item {
        width: parent.width
        height: 8 + Math.max(complete.height, done.height)

        ProminentButton {
            id: complete
            y: 8
            visible: !root.lesson.isComplete
            label: Localized.czech ? "Trojici umím" : "I've got this trio"
            onClicked: root.lesson.complete()
        }
        Row {
            id: done
            y: 8
            height: 32
            visible: root.lesson.isComplete
            spacing: 8
            Accessible.role: Accessible.StaticText
            Accessible.name: doneLabel.text
            Accessible.focusable: true
            Accessible.focused: done.activeFocus

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "history"
                size: 18
                color: Theme.secondaryInk
            }
            PlainLabel {
                id: doneLabel
                height: parent.height
                text: Localized.czech ? "Dnes splněno ✓" : "Done for today ✓"
                font.weight: Theme.strongWeight
                Accessible.ignored: true
            }
        }
        FocusRing {
            anchors.fill: done
            control: done
            gap: 5
        }
    }
}
