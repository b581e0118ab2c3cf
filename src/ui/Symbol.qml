// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

import Keyvora

// One of the program's symbols, in the colour of the text beside it.
TintedSymbol {
    color: Theme.ink
}
