// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetPage.h"
#include "model/Shortcut.h"

namespace keyvora {

class Typesetter;

/// What the sheet is about, in the current interface language.
QString standardSheetTitle();

/// Lays the shortcuts out in two columns, in their order, on a page of this width in points that is as high
/// as they need.
SheetPage standardSheet(const QList<Shortcut> &shortcuts, int width, Typesetter &typesetter);

} // namespace keyvora
