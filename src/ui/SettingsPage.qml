// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// All that can be set, from top to bottom, and the person's own shortcuts at the end, of which there may be
// thousands.
FocusScope {
    id: root

    required property string title
    required property Settings settings
    required property CustomShortcuts customs

    readonly property int padding: 18
    readonly property int undoGap: 14

    // The shortcut that the keyboard comes to. The view's own current item would take the keyboard from the rest.
    property int currentRow: 0

    signal closed

    function scrollTo(y: real): void {
        const top = list.originY;
        list.contentY = Math.max(top, Math.min(y, top + list.contentHeight - list.height));
    }

    // Scrolls as little as shows the whole item, above what offers to undo a deletion.
    function bringIntoView(item: Item): void {
        const below = root.padding + (undoBar.visible ? undoBar.height + root.undoGap : 0);
        const top = item.mapToItem(list.contentItem, 0, 0).y;
        root.scrollTo(Math.min(Math.max(list.contentY, top + item.height + below - list.height), top - root.padding));
    }

    // Moves the keyboard to one of the shortcuts, or where there is none to what comes after them.
    function focusRow(row: int): void {
        list.forceLayout();
        root.currentRow = Math.max(0, Math.min(row, list.count - 1));
        list.positionViewAtIndex(root.currentRow, ListView.Contain);
        const shortcut = list.itemAtIndex(root.currentRow);
        if (shortcut !== null)
            shortcut.forceActiveFocus(Qt.TabFocusReason);
        else
            root.leaveDownwards();
    }

    // The way of the keyboard from what stands above and below the shortcuts; false where there are none.
    function enterRows(): bool {
        if (list.count > 0)
            root.focusRow(root.currentRow);
        return list.count > 0;
    }

    function leaveDownwards(): void {
        if (undoBar.visible)
            undoBar.focusButton();
        else
            closeButton.forceActiveFocus(Qt.TabFocusReason);
    }

    // Moves the keyboard from row to row; false at the ends of the list.
    function step(from: int, by: int): bool {
        const isInList = from + by >= 0 && from + by < list.count;
        if (isInList)
            root.focusRow(from + by);
        return isInList;
    }

    // Deletes a shortcut; the keyboard goes on to the next one.
    function remove(row: int): void {
        const hadFocus = list.itemAtIndex(row)?.activeFocus ?? false;
        root.customs.remove(row);
        if (hadFocus)
            root.focusRow(row);
    }

    implicitHeight: heading.height + list.contentHeight
    Keys.onPressed: event => {
        const page = list.height - 60;
        switch (event.key) {
        case Qt.Key_PageUp:
            root.scrollTo(list.contentY - page);
            break;
        case Qt.Key_PageDown:
            root.scrollTo(list.contentY + page);
            break;
        case Qt.Key_Home:
            root.scrollTo(list.originY);
            break;
        case Qt.Key_End:
            root.scrollTo(list.originY + list.contentHeight);
            break;
        default:
            return;
        }
        event.accepted = true;
    }

    Shortcut {
        sequence: "Ctrl+Z"
        onActivated: root.customs.undo()
    }
    FocusFollower {
        within: list.contentItem
        onMoved: focused => root.bringIntoView(focused)
    }

    Item {
        id: heading
        x: root.padding
        width: root.width - 2 * root.padding
        height: 54

        PlainLabel {
            height: parent.height
            text: root.title
            size: 17
            font.weight: Theme.strongWeight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        SymbolButton {
            id: closeButton
            anchors.right: parent.right
            anchors.rightMargin: -4
            anchors.verticalCenter: parent.verticalCenter
            symbol: "close"
            size: 18
            label: Localized.czech ? "Zavřít" : "Close"
            onClicked: root.closed()
            Keys.onBacktabPressed: event => event.accepted = !undoBar.visible && root.enterRows()
        }
    }
    // Qt 6.4 gives the linter no way to know that a component belongs to the one around it.
    // qmllint disable unqualified
    ListView {
        id: list
        objectName: "settingsList"
        anchors.top: heading.bottom
        anchors.bottom: parent.bottom
        width: root.width
        focus: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        currentIndex: -1
        model: root.customs.list
        Accessible.role: Accessible.List
        Accessible.name: Localized.czech ? "Vlastní zkratky" : "Custom Shortcuts"

        T.ScrollBar.vertical: SlimScrollBar {}

        header: SettingsSections {
            x: root.padding
            width: list.width - 2 * root.padding
            settings: root.settings
            hasCustoms: list.count > 0
            onLeftDownwards: root.enterRows()
        }
        delegate: CustomShortcutRow {
            id: row

            required property int index

            x: root.padding
            width: list.width - 2 * root.padding
            conflictTitle: root.customs.conflictTitle(row.index, root.customs.revision, Localized.czech)
            onDeleted: root.remove(row.index)
            onActiveFocusChanged: {
                if (row.activeFocus)
                    root.currentRow = row.index;
            }
            Keys.onTabPressed: root.leaveDownwards()
            Keys.onBacktabPressed: (list.headerItem as SettingsSections).focusLast()
            Keys.onUpPressed: event => event.accepted = root.step(row.index, -1)
            Keys.onDownPressed: event => event.accepted = root.step(row.index, 1)
        }
        footer: Item {
            x: root.padding
            width: list.width - 2 * root.padding
            height: bottom.height + version.height + 14

            PaneSlice {
                id: bottom
                width: parent.width
                height: 10
                isBottom: true
            }
            PlainLabel {
                id: version
                anchors.top: bottom.bottom
                width: parent.width
                height: 40
                text: root.settings.versionLabel
                size: 11.5
                color: Theme.secondaryInk
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    // qmllint enable unqualified
    UndoBar {
        id: undoBar
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.undoGap
        x: root.padding + 8
        width: root.width - 2 * x
        visible: root.customs.canUndo
        title: root.customs.deletedTitle
        onUndone: root.customs.undo()
        onLeftUpwards: root.enterRows()
        // What is hidden would keep the keyboard.
        onVisibleChanged: {
            if (!undoBar.visible && undoBar.hadFocus)
                root.focusRow(root.currentRow);
        }
    }
}
