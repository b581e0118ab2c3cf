// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import Keyvora

// The keys of a shortcut in a row.
KeyCapRow {
    czech: Localized.czech
    fill: Theme.capFill
    outline: Theme.capOutline
    outlineWidth: Theme.hairlineWidth
    ink: Theme.ink
    stepInk: Theme.secondaryInk
    weight: Theme.strongWeight
}
