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

    // What is longer than its picture is made of pieces, which must neither overlap nor leave gaps.
    function test_longOnesAreEven(): void {
        root.show(longComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        const shade = picture.pixel(10, 20);
        fuzzyCompare(shade.r, 1, 0.02);
        fuzzyCompare(shade.g, 0.5, 0.02);
        for (let x = 10; x < 210; ++x)
            compare(picture.pixel(x, 20), shade, "line at " + x);
        for (let y = 60; y < 180; ++y) {
            compare(picture.pixel(10, y), shade, "left edge at " + y);
            compare(picture.pixel(209, y), shade, "right edge at " + y);
            compare(picture.pixel(11, y), picture.pixel(11, 60), "inside at " + y);
            compare(picture.pixel(100, y), picture.pixel(11, 60), "middle at " + y);
        }
        for (let x = 30; x < 190; ++x) {
            compare(picture.pixel(x, 40), shade, "upper edge at " + x);
            compare(picture.pixel(x, 199), shade, "lower edge at " + x);
        }
        compare(picture.pixel(9, 100), Qt.rgba(1, 1, 1, 1));
        compare(picture.pixel(210, 100), Qt.rgba(1, 1, 1, 1));
    }

    function test_aShadowLiesEvenlyAroundWhatCastsIt(): void {
        root.show(shadowComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        const below = picture.pixel(150, 201).r;
        verify(below < 0.95, "shadow below: " + below);
        for (let x = 80; x < 260; ++x)
            fuzzyCompare(picture.pixel(x, 201).r, below, 0.005);
        compare(picture.pixel(38, 120), picture.pixel(301, 120));
        verify(picture.pixel(150, 38).r > below, "the shadow falls downwards");
        compare(picture.pixel(10, 120), Qt.rgba(1, 1, 1, 1));
    }

    function test_aWideShadowLiesEvenlyAroundSmallThings(): void {
        root.show(wideShadowComponent);
        waitForRendering(root.item);
        const picture = grabImage(root.item);
        const beside = [picture.pixel(98, 150).r, picture.pixel(221, 150).r, picture.pixel(160, 118).r, picture.pixel(160, 181).r];
        verify(beside[0] < 0.95, "shadow beside: " + beside[0]);
        compare(beside[0], beside[1]);
        compare(beside[2], beside[3]);
        verify(picture.pixel(80, 150).r > beside[0], "it fades");
        compare(picture.pixel(35, 150), Qt.rgba(1, 1, 1, 1));
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
        id: longComponent

        Item {
            RoundedRectangle {
                x: 10
                y: 20
                width: 200
                height: 1
                color: "#80FF0000"
            }
            RoundedRectangle {
                x: 10
                y: 40
                width: 200
                height: 160
                radius: 16
                color: "#400000FF"
                borderWidth: 1
                borderColor: "#80FF0000"
            }
        }
    }
    Component {
        id: shadowComponent

        Item {
            CardShadow {
                x: 40
                y: 40
                width: 260
                height: 160
                cornerRadius: 16
                blur: 8
                offset: 3
                percent: 30
            }
            RoundedRectangle {
                x: 40
                y: 40
                width: 260
                height: 160
                radius: 16
                color: "#00FF00"
            }
        }
    }
    Component {
        id: wideShadowComponent

        Item {
            CardShadow {
                x: 100
                y: 120
                width: 120
                height: 60
                cornerRadius: 18
                blur: 60
                offset: 0
                percent: 28
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
