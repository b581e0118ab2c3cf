// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

namespace keyvora {

// Shortcuts come from menus and files, where anything can stand in any length. These are their parts as a
// screen may show them: harmless, in one line, and bounded. What is whole and short stays as it is.

QString displayableTitle(const Shortcut &shortcut);
QString displayableHeader(const Shortcut &shortcut);
QString displayableDetail(const Shortcut &shortcut);

/// An ellipsis stands for the keys that are too many.
QStringList displayableKeys(const Shortcut &shortcut);

} // namespace keyvora
