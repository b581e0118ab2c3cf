// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick
import Keyvora

// The keyboard, key by key. One stop for Tab; arrow keys move between the keys.
FocusScope {
    id: root

    required property VisualKeyboard keyboard
    // Whether keys are marked at all.
    property bool isMarking: false

    readonly property int padding: 14
    readonly property int gap: 7
    readonly property int rowGap: 10
    readonly property int keyHeight: 44
    readonly property real innerWidth: root.width - 2 * root.padding

    // All keys from the top left: token, row, position in the row, and widths in units of the row's plain keys.
    // An array of plain objects, for which QML has no type.
    readonly property var places: root.placesOf(Array.from(root.keyboard.rows))

    function placesOf(rows: var): var {
        let places = [];
        for (let row = 0; row < rows.length; ++row) {
            const tokens = Array.from(rows[row]);
            const total = tokens.reduce((sum, token) => sum + root.relativeWidth(token), 0);
            let before = 0;
            for (let position = 0; position < tokens.length; ++position) {
                const size = root.relativeWidth(tokens[position]);
                places.push({
                    "token": tokens[position],
                    "row": row,
                    "position": position,
                    "last": tokens.length - 1,
                    "before": before,
                    "size": size,
                    "total": total
                });
                before += size;
            }
        }
        return places;
    }

    function relativeWidth(token: string): real {
        switch (token) {
        case "Esc":
            return 1.15;
        case "Tab":
            return 1.6;
        case "⇧":
            return 1.75;
        case "Space":
            return 4;
        default:
            return 1;
        }
    }

    // Where so many units and gaps end, on a whole point.
    function edge(place: var, units: real): real {
        const unit = (root.innerWidth - place.last * root.gap) / place.total;
        return Math.round(units * unit + place.position * root.gap);
    }

    function focusedIndex(): int {
        for (let i = 0; i < keys.count; ++i) {
            if (keys.itemAt(i).focus)
                return i;
        }
        return 0;
    }

    // Whether there is such a key.
    function moveTo(index: int): bool {
        if (index < 0 || index >= keys.count || index === root.focusedIndex())
            return false;
        keys.itemAt(index).focus = true;
        return true;
    }

    function moveInRow(step: int): bool {
        const index = root.focusedIndex();
        return root.places[index + step]?.row === root.places[index].row && root.moveTo(index + step);
    }

    // To the key of that row whose middle is the nearest.
    function moveToRow(row: int): bool {
        const from = keys.itemAt(root.focusedIndex());
        const distance = index => Math.abs(keys.itemAt(index).x + keys.itemAt(index).width / 2 - from.x - from.width / 2);
        let best = -1;
        for (let i = 0; i < root.places.length; ++i) {
            if (root.places[i].row === row && (best < 0 || distance(i) < distance(best)))
                best = i;
        }
        return root.moveTo(best);
    }

    function moveToEnd(isLast: bool): bool {
        const place = root.places[root.focusedIndex()];
        const first = root.focusedIndex() - place.position;
        return root.moveTo(isLast ? first + place.last : first);
    }

    implicitHeight: 4 * root.keyHeight + 3 * root.rowGap + 2 * root.padding
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: Localized.czech ? "Klávesnice" : "Keyboard"

    Keys.onPressed: event => {
        const row = root.places[root.focusedIndex()].row;
        switch (event.key) {
        case Qt.Key_Left:
            event.accepted = root.moveInRow(-1);
            break;
        case Qt.Key_Right:
            event.accepted = root.moveInRow(1);
            break;
        case Qt.Key_Up:
            event.accepted = root.moveToRow(row - 1);
            break;
        case Qt.Key_Down:
            event.accepted = root.moveToRow(row + 1);
            break;
        case Qt.Key_Home:
            event.accepted = root.moveToEnd(false);
            break;
        case Qt.Key_End:
            event.accepted = root.moveToEnd(true);
            break;
        }
    }
    // The keyboard comes to the chosen key first.
    Component.onCompleted: keys.itemAt(Math.max(0, root.places.findIndex(place => place.token === root.keyboard.selectedKey))).focus = true

    RoundedRectangle {
        anchors.fill: parent
        radius: 16
        color: Theme.card
        borderWidth: Theme.hairlineWidth
        borderColor: Theme.hairline
    }
    Repeater {
        id: keys

        model: root.places.length

        // Qt 6.4 gives the linter no way to know that a delegate belongs to the component around it.
        // qmllint disable unqualified
        delegate: DrawnKey {
            id: key

            required property int index
            readonly property var place: root.places[key.index]

            x: root.padding + root.edge(key.place, key.place.before)
            y: root.padding + key.place.row * (root.keyHeight + root.rowGap)
            width: root.edge(key.place, key.place.before + key.place.size) - root.edge(key.place, key.place.before)
            height: root.keyHeight
            token: key.place.token
            isMarking: root.isMarking
            available: Array.from(root.keyboard.availableKeys).includes(key.token)
            selected: root.keyboard.selectedKey === key.token
            onClicked: root.keyboard.select(key.token)
        }
        // qmllint enable unqualified
    }
}
