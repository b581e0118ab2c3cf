// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import QtQuick

// What to beware of.
MessageLine {
    symbol: "warning-fill"
    tint: Theme.warning
    color: Theme.warningInk
}
