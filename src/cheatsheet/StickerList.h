// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"
#include "model/Shortcut.h"

namespace keyvora {

/// The essentials that the cheat sheet shows: a fixed choice from the built-in catalog in a language, in the
/// catalog's order.
QList<Shortcut> stickerList(AppLanguage language);

/// The few of a catalog that fit on a card, in the card's own order; those that the catalog lacks are left
/// out, and of several with the same id the first counts.
QList<Shortcut> walletList(const QList<Shortcut> &catalog);

} // namespace keyvora
