// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// A few shortcuts as cards, in as many columns of at least 250 points as fit, as high as they need. One stop for Tab;
// arrow keys move between the cards.
FocusScope {
    id: root

    required property AppModel appModel
    required property ShortcutListModel shortcuts

    readonly property alias count: cards.count
    readonly property int columns: Theme.cardColumns(root.width)
    readonly property int rows: Math.ceil(root.count / root.columns)
    readonly property int cellWidth: Math.floor((root.width + Theme.cardSpacing) / root.columns)

    function focusedIndex(): int {
        for (let i = 0; i < cards.count; ++i) {
            if (cards.itemAt(i)?.focus)
                return i;
        }
        return -1;
    }

    // Whether there is a card to go to.
    function moveTo(index: int): bool {
        if (index < 0 || index >= cards.count || index === root.focusedIndex())
            return false;
        cards.itemAt(index).focus = true;
        return true;
    }

    implicitHeight: Math.max(0, root.rows * (Theme.cardHeight + Theme.cardSpacing) - Theme.cardSpacing)
    activeFocusOnTab: root.count > 0
    Accessible.role: Accessible.List
    Accessible.name: Localized.czech ? "Zkratky" : "Shortcuts"

    Keys.onPressed: event => {
        const index = root.focusedIndex();
        switch (event.key) {
        case Qt.Key_Left:
            event.accepted = root.moveTo(index - 1);
            break;
        case Qt.Key_Right:
            event.accepted = root.moveTo(index + 1);
            break;
        case Qt.Key_Up:
            event.accepted = root.moveTo(index - root.columns);
            break;
        case Qt.Key_Down:
            event.accepted = root.moveTo(index + root.columns);
            break;
        case Qt.Key_Home:
            event.accepted = root.moveTo(0);
            break;
        case Qt.Key_End:
            event.accepted = root.moveTo(root.count - 1);
            break;
        }
    }

    Repeater {
        id: cards

        model: root.shortcuts

        onItemAdded: (index, item) => {
            if (root.focusedIndex() < 0)
                item.focus = true;
        }
        // The neighbour takes over from a card that goes with the focus.
        onItemRemoved: (index, item) => {
            if (item.focus)
                root.moveTo(Math.min(index, cards.count - 1));
        }

        // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
        // qmllint disable unqualified
        delegate: ShortcutCard {
            id: card

            required property int index

            x: card.index % root.columns * root.cellWidth
            y: Math.floor(card.index / root.columns) * (Theme.cardHeight + Theme.cardSpacing)
            width: root.cellWidth - Theme.cardSpacing
            height: Theme.cardHeight
            onPressed: card.forceActiveFocus(Qt.MouseFocusReason)
            onFavoriteToggled: shortcutId => root.appModel.toggleFavorite(shortcutId)
        }
        // qmllint enable unqualified
    }
}
