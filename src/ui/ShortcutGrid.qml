// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import QtQuick.Templates as T
import Keyvora

// Shortcuts as cards, in as many columns of at least 250 points as fit.
GridView {
    id: root

    required property AppModel appModel

    property int revealedRow: -1

    readonly property int padding: 22
    readonly property int columns: Theme.cardColumns(root.width - 2 * root.padding)

    // Makes the card of a shortcut the current one and brings it into view, where it stays until the person scrolls or
    // moves on: the window may just be getting its size.
    function reveal(shortcutId: string): void {
        root.forceLayout();
        root.revealedRow = root.model.rowOf(shortcutId);
        if (root.revealedRow < 0)
            return;
        root.currentIndex = root.revealedRow;
        root.showRevealed();
    }

    function showRevealed(): void {
        if (root.revealedRow >= 0 && root.revealedRow === root.currentIndex)
            root.positionViewAtIndex(root.revealedRow, GridView.Center);
    }

    // Goes to where another grid was, unless it was told already where to be.
    function resume(contentY: real, row: int): void {
        if (root.revealedRow >= 0)
            return;
        root.forceLayout();
        root.currentIndex = Math.min(row, root.count - 1);
        root.contentY = Math.max(-root.topMargin, Math.min(contentY, root.contentHeight + root.bottomMargin - root.height));
    }

    // The spacing right of the last column and below the last row is part of their cells.
    leftMargin: root.padding
    rightMargin: root.padding - Theme.cardSpacing
    topMargin: 8
    bottomMargin: root.padding - Theme.cardSpacing
    cellWidth: Math.floor((root.width - 2 * root.padding + Theme.cardSpacing) / root.columns)
    cellHeight: Theme.cardHeight + Theme.cardSpacing
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: root.count > 0
    keyNavigationEnabled: true
    // Cards made ahead of time would be made in vain at the next keystroke in the search field.
    cacheBuffer: 0

    Accessible.role: Accessible.List
    Accessible.name: Localized.czech ? "Zkratky" : "Shortcuts"

    // The keyboard may come to a card that was scrolled away.
    onActiveFocusChanged: {
        if (root.activeFocus && Theme.showsFocus)
            root.positionViewAtIndex(root.currentIndex, GridView.Contain);
    }
    onMovementStarted: root.revealedRow = -1
    onCountChanged: root.revealedRow = -1
    onHeightChanged: root.showRevealed()
    onColumnsChanged: root.showRevealed()

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(root.height / root.cellHeight)) * root.columns;
        switch (event.key) {
        case Qt.Key_Home:
            root.currentIndex = 0;
            break;
        case Qt.Key_End:
            root.currentIndex = root.count - 1;
            break;
        case Qt.Key_PageUp:
            root.currentIndex = Math.max(0, root.currentIndex - page);
            break;
        case Qt.Key_PageDown:
            root.currentIndex = Math.min(root.count - 1, root.currentIndex + page);
            break;
        default:
            return;
        }
        event.accepted = true;
    }

    T.ScrollBar.vertical: SlimScrollBar {}

    // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
    // qmllint disable unqualified
    delegate: ShortcutCard {
        required property int index

        width: root.cellWidth - Theme.cardSpacing
        height: Theme.cardHeight
        onPressed: {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
        }
        onFavoriteToggled: shortcutId => root.appModel.toggleFavorite(shortcutId)
    }
    // qmllint enable unqualified
}
