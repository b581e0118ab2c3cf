// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetElements.h"

#include <QSize>

namespace keyvora {

/// A page that is laid out.
struct SheetPage
{
    QSize size; ///< points
    SheetElements elements;
};

} // namespace keyvora
