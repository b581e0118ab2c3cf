// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// A screen of its own: a column of what it says, which scrolls where it is longer than the window.
FocusScope {
    id: root

    default property alias content: column.data
    property alias spacing: column.spacing

    readonly property alias contentY: flickable.contentY
    readonly property int padding: 22
    readonly property int lineStep: 60

    // Moves the keyboard to the first control.
    function focusFirst(): void {
        Theme.showsFocus = true;
        root.forceActiveFocus(Qt.TabFocusReason);
        const first = column.nextItemInFocusChain(true);
        if (first !== null)
            first.forceActiveFocus(Qt.TabFocusReason);
    }

    // Scrolls to an item, and to all of the section that it belongs to where that fits.
    function show(item: Item): void {
        let section = item;
        while (section.parent !== column)
            section = section.parent;
        if (section.height + 2 * root.padding <= flickable.height)
            root.bringIntoView(section);
        else
            root.bringIntoView(item);
    }

    // Scrolls as little as shows the whole item.
    function bringIntoView(item: Item): void {
        const top = item.mapToItem(column, 0, 0).y + column.y;
        const highest = top + item.height + root.padding - flickable.height;
        flickable.contentY = Math.max(0, Math.min(Math.max(flickable.contentY, highest), top - root.padding));
    }

    function scrollTo(y: real): bool {
        const before = flickable.contentY;
        flickable.contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height));
        return flickable.contentY !== before;
    }

    // A screen that takes the place of another one takes its keyboard, too.
    focus: true

    // What the controls leave of the keys scrolls.
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Tab:
            // Else it would leave for the first control of the window.
            event.accepted = root.Window.activeFocusItem === root;
            if (event.accepted)
                root.focusFirst();
            break;
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
        case Qt.Key_Home:
            event.accepted = root.scrollTo(0);
            break;
        case Qt.Key_End:
            event.accepted = root.scrollTo(flickable.contentHeight);
            break;
        }
    }

    FocusFollower {
        within: column
        onMoved: focused => root.show(focused)
    }

    Flickable {
        id: flickable
        anchors.fill: parent
        contentHeight: column.height + root.padding
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: SlimScrollBar {}

        Column {
            id: column
            x: root.padding
            width: flickable.width - 2 * root.padding
            spacing: 14
        }
    }
}
