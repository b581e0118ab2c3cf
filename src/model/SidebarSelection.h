// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

#include <QHashFunctions>

namespace keyvora {

/// What the main window shows: a filtered library or one of the screens of its own.
struct SidebarSelection
{
    enum class Kind : quint8 {
        all,
        favorites,
        category, ///< the shortcuts of `category`
        keyboard,
        sticker,
        firstAid,
        daily,
        practice,
    };

    Kind kind = Kind::all;
    Shortcut::Category category = Shortcut::Category::zaklady; ///< meaningful for `Kind::category` alone

    friend bool operator==(const SidebarSelection &left, const SidebarSelection &right)
    {
        return left.kind == right.kind && (left.kind != Kind::category || left.category == right.category);
    }

    friend size_t qHash(const SidebarSelection &selection, size_t seed = 0)
    {
        const size_t hash = ::qHash(static_cast<quint8>(selection.kind), seed);
        return selection.kind == Kind::category ? ::qHash(rawValue(selection.category), hash) : hash;
    }
};

} // namespace keyvora
