// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace keyvora {

/// What stands on the keys of the user's keyboard.
class KeyboardLayout
{
public:
    /// One key, in the notation of the catalog: a capital letter, a digit, a sign, or the word for a key that
    /// has one ("Return", "F2"). The minus sign is U+2212, and accents that wait for a letter count as signs.
    struct Key
    {
        QString plain; ///< what it gives alone; empty when that is nothing
        QString typed; ///< what it gives with the modifiers that are held; empty when that is nothing
        /// The Latin letter or sign of the same key, where the layout's letters are of another script; empty
        /// otherwise.
        QString latin;

        friend bool operator==(const Key &, const Key &) = default;
    };

    virtual ~KeyboardLayout() = default;

    /// The key of a key event, by the three native values that the toolkit gives for it. Nothing where the
    /// layout is not known (yet), and for keys that are modifiers or locks.
    [[nodiscard]] virtual std::optional<Key> key(quint32 scanCode, quint32 symbol, quint32 state) const = 0;
};

} // namespace keyvora
