// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The practice quiz: a shortcut's title, and a field in which to press its keys.
ScrollPage {
    id: root

    required property PracticeSession practice
    required property KeyReader keyReader

    readonly property bool isAnswered: root.practice.answer !== PracticeSession.Answer.Unanswered
    readonly property bool goesOnWithReturn: root.isAnswered && root.activeFocus && !startOver.activeFocus

    // Whether Return may go on.
    function goOn(): bool {
        if (!root.goesOnWithReturn)
            return false;
        root.practice.next();
        return true;
    }

    spacing: 16
    Keys.onReturnPressed: event => event.accepted = root.goOn()
    Keys.onEnterPressed: event => event.accepted = root.goOn()

    Item {
        width: parent.width
        height: 24

        PlainLabel {
            id: task
            height: parent.height
            text: (Localized.czech ? "Úkol " : "Task ") + root.practice.taskNumber
            size: 14
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.description: (Localized.czech ? "Z " : "Of ") + root.practice.taskCount
        }
        Row {
            anchors.right: parent.right
            height: parent.height
            spacing: 8

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "trophy-fill"
                color: Theme.star
            }
            PlainLabel {
                height: parent.height
                text: root.practice.score + (Localized.czech ? " bodů" : " points")
                size: 14
                font.weight: Theme.strongWeight
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    Item {
        width: parent.width
        height: 5
        Accessible.ignored: true

        RoundedRectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            // With much contrast the line itself is strong, and what is done is told by its thickness.
            height: Theme.highContrast ? 1 : parent.height
            radius: height / 2
            color: Theme.hairline
        }
        RoundedRectangle {
            objectName: "progress"
            width: parent.width * root.practice.taskNumber / Math.max(1, root.practice.taskCount)
            height: parent.height
            radius: height / 2
            color: Theme.accent
        }
    }
    RoundedRectangle {
        width: parent.width
        height: body.height + 74
        radius: 22
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline

        Column {
            id: body
            anchors.centerIn: parent
            width: parent.width - 48
            spacing: 18

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 18
                spacing: 9
                Accessible.role: Accessible.StaticText
                Accessible.name: prompt.text

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: root.goesOnWithReturn ? "keyboard_return" : "keyboard"
                    color: Theme.secondaryInk
                }
                PlainLabel {
                    id: prompt
                    height: parent.height
                    text: root.goesOnWithReturn ? (Localized.czech ? "Pokračujte klávesou Return" : "Press Return to go on")
                                          : (Localized.czech ? "Stiskněte odpovídající kombinaci kláves" : "Press the matching key combination")
                    size: 13
                    color: Theme.secondaryInk
                    Accessible.ignored: true
                }
            }
            PlainLabel {
                width: parent.width
                text: root.practice.title
                size: 30
                font.weight: 700
                font.letterSpacing: -0.5
                fontSizeMode: Text.HorizontalFit
                minimumPointSize: Theme.points(18)
                horizontalAlignment: Text.AlignHCenter
                maximumLineCount: 2
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            KeyCaptureView {
                id: field

                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, parent.width)
                reader: root.keyReader
                isBlank: root.isAnswered
                tint: !root.isAnswered ? Theme.accent : answer.isCorrect ? Theme.right : Theme.wrong
                onPressed: press => root.practice.take(press)
                // Nobody reads out the title of the next task while the keyboard stays here.
                Accessible.description: field.capturing ? root.practice.title + ". " + field.wayOut : root.practice.title
                onReleased: nextTask.forceActiveFocus(Qt.TabFocusReason)

                PracticeAnswer {
                    id: answer
                    anchors.centerIn: parent
                    width: parent.width - 32
                    visible: root.isAnswered
                    isCorrect: root.practice.answer === PracticeSession.Answer.Correct
                    keys: root.practice.keys // qmllint disable type
                    tint: field.tint
                }
            }
        }
    }
    Item {
        width: parent.width
        height: 32

        GlassButton {
            id: startOver
            label: Localized.czech ? "Začít znovu" : "Start Over"
            onClicked: root.practice.startOver()
        }
        PlainLabel {
            anchors.left: startOver.right
            anchors.right: nextTask.left
            anchors.margins: 12
            height: parent.height
            visible: root.practice.answer === PracticeSession.Answer.Wrong && !root.practice.isLastTask
            text: (Localized.czech ? "Stiskli jste %1" : "You pressed %1").arg(Localized.shownKeys(root.practice.capturedKeys, Localized.czech))
            horizontalAlignment: Text.AlignHCenter
            color: Theme.secondaryInk
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        PlainLabel {
            anchors.left: startOver.right
            anchors.right: nextTask.left
            anchors.margins: 12
            height: parent.height
            visible: root.isAnswered && root.practice.isLastTask
            text: (Localized.czech ? "Kolo dokončeno, správně %1 z %2" : "Round complete, %1 of %2 correct").arg(root.practice.score).arg(root.practice.taskCount)
            horizontalAlignment: Text.AlignHCenter
            font.weight: Theme.mediumWeight
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        ProminentButton {
            id: nextTask
            anchors.right: parent.right
            label: Localized.czech ? "Další úkol" : "Next Task"
            onClicked: {
                // Whoever works with the mouse would only have to click the field next.
                const isByMouse = nextTask.activeFocus && nextTask.focusReason === Qt.MouseFocusReason;
                root.practice.next();
                if (isByMouse)
                    field.forceActiveFocus(Qt.MouseFocusReason);
            }
        }
    }
}
