// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// Text that is never taken for markup, wherever it comes from.
Text {
    property real size: 13

    color: Theme.ink
    font.pointSize: Theme.points(size)
    textFormat: Text.PlainText
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
