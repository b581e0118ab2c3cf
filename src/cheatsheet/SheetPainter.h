// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetElements.h"

class QPainter;

namespace keyvora {

/// Draws a page's elements, in a painter's coordinates that count points. All stays vectors but pictures in a
/// text.
void paintSheet(QPainter &painter, const SheetElements &elements);

} // namespace keyvora
