// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/xcb.h>

// The header calls a field by a word that C++ has taken.
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit
