// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetPage.h"
#include "model/Shortcut.h"

namespace keyvora {

class Typesetter;

/// Lays out the card with its few essentials from a catalog. The size is in points.
SheetPage walletCard(const QList<Shortcut> &catalog, QSize size, Typesetter &typesetter);

} // namespace keyvora
