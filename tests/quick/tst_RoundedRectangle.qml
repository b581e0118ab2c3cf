// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtTest
import Keyvora
import KeyvoraTest

KeyvoraTestCase {
    id: root

    function show(what: Component): void {
        root.item.sourceComponent = what;
    }

    // Edges between pixels would be drawn on both, and fainter.
    function test_outlinesLieOnWholePixels(): void {
        root.show(outlineComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        for (const row of [50, 60, 70]) {
            compare(picture.pixel(9, row), Qt.rgba(1, 1, 1, 1));
            compare(picture.pixel(10, row), Qt.rgba(1, 0, 0, 1));
            compare(picture.pixel(11, row), Qt.rgba(0, 0, 1, 1));
            compare(picture.pixel(108, row), Qt.rgba(0, 0, 1, 1));
            compare(picture.pixel(109, row), Qt.rgba(1, 0, 0, 1));
            compare(picture.pixel(110, row), Qt.rgba(1, 1, 1, 1));
        }
        // The corner is round.
        compare(picture.pixel(10, 20), Qt.rgba(1, 1, 1, 1));
    }

    function test_whatIsClippedAwayIsNotDrawn(): void {
        root.show(clippedComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        compare(picture.pixel(50, 45), Qt.rgba(1, 0, 0, 1));
        compare(picture.pixel(50, 55), Qt.rgba(1, 1, 1, 1));
        compare(picture.pixel(50, 125), Qt.rgba(1, 1, 1, 1));
    }

    function test_linesAreAsThickInOnePlaceAsInAnother(): void {
        root.show(linesComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        for (const left of [10, 20]) {
            compare(picture.pixel(left - 1, 50), Qt.rgba(1, 1, 1, 1));
            compare(picture.pixel(left, 50), Qt.rgba(1, 0, 0, 1));
            compare(picture.pixel(left + 1, 50), Qt.rgba(1, 1, 1, 1));
        }
    }

    function test_outlinesThatLetThroughShowWhatIsBelow(): void {
        root.show(faintComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        const outline = picture.pixel(10, 60);
        fuzzyCompare(outline.r, 1, 0.02);
        fuzzyCompare(outline.g, 0.5, 0.02);
        compare(picture.pixel(60, 60), Qt.rgba(1, 1, 1, 1));
    }

    name: "RoundedRectangle"
    subject: Component {
        Loader {
            width: root.width
            height: root.height

            Rectangle {
                z: -1
                anchors.fill: parent
                color: "white"
            }
        }
    }

    Component {
        id: outlineComponent

        Item {
            RoundedRectangle {
                x: 10.4
                y: 20.3
                width: 99.3
                height: 80.2
                radius: 8
                color: "#0000FF"
                borderWidth: 1.2
                borderColor: "#FF0000"
            }
        }
    }
    Component {
        id: clippedComponent

        Item {
            Item {
                width: 100
                height: 50
                clip: true

                RoundedRectangle {
                    width: 100
                    height: 100
                    color: "red"
                }
                RoundedRectangle {
                    y: 100
                    width: 100
                    height: 50
                    color: "red"
                }
            }
        }
    }
    Component {
        id: linesComponent

        Item {
            RoundedRectangle {
                x: 10
                width: 1.25
                height: 100
                color: "red"
            }
            RoundedRectangle {
                x: 20.25
                width: 1.25
                height: 100
                color: "red"
            }
        }
    }
    Component {
        id: faintComponent

        Item {
            RoundedRectangle {
                x: 10
                y: 20
                width: 100
                height: 80
                radius: 8
                color: "white"
                borderWidth: 1
                borderColor: Qt.rgba(1, 0, 0, 0.5)
            }
        }
    }
}
