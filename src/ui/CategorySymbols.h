// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

namespace keyvora {

/// The name of the symbol that stands for a category.
QString categorySymbol(Shortcut::Category category);

} // namespace keyvora
