// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// What a sheet shows. It scrolls where the window is too low for it.
Item {
    id: root

    required property Item body
    // Below this it scrolls.
    required property real leastHeight

    readonly property int lineStep: 60
    // Between the edges and what is shown, for the rings around what is there.
    readonly property int margin: 6

    // Scrolls as little as shows the whole item.
    function bringIntoView(item: Item): void {
        const top = item.mapToItem(root.body, 0, 0).y;
        const highest = top + item.height + 2 * root.margin - flickable.height;
        root.scrollTo(Math.min(Math.max(flickable.contentY, highest), top));
    }

    function scrollTo(y: real): bool {
        const before = flickable.contentY;
        flickable.contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height));
        return flickable.contentY !== before;
    }

    implicitHeight: root.body.implicitHeight

    // What the controls leave of the keys scrolls.
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Up:
            event.accepted = root.scrollTo(flickable.contentY - root.lineStep);
            break;
        case Qt.Key_Down:
            event.accepted = root.scrollTo(flickable.contentY + root.lineStep);
            break;
        case Qt.Key_PageUp:
            event.accepted = root.scrollTo(flickable.contentY - flickable.height + root.lineStep);
            break;
        case Qt.Key_PageDown:
            event.accepted = root.scrollTo(flickable.contentY + flickable.height - root.lineStep);
            break;
        }
    }

    FocusFollower {
        within: root.body
        onMoved: focused => root.bringIntoView(focused)
    }

    Flickable {
        id: flickable
        objectName: "sheetBody"
        x: -root.margin
        y: -root.margin
        width: root.width + 2 * root.margin
        height: root.height + 2 * root.margin
        contentWidth: flickable.width
        contentHeight: Math.max(flickable.height, root.leastHeight + 2 * root.margin)
        interactive: flickable.contentHeight > flickable.height
        clip: flickable.interactive
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: SlimScrollBar {
            parent: root
            x: root.width + root.margin
            height: root.height
        }
    }
    Binding {
        target: root.body
        property: "parent"
        value: flickable.contentItem
    }
    Binding {
        target: root.body
        property: "x"
        value: root.margin
    }
    Binding {
        target: root.body
        property: "y"
        value: root.margin
    }
    Binding {
        target: root.body
        property: "width"
        value: root.width
    }
    Binding {
        target: root.body
        property: "height"
        value: flickable.contentHeight - 2 * root.margin
    }
}
