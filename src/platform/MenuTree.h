// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace keyvora {

/// The modifiers of a menu command as bits of `MenuElement::modifiers`. The Command key (Super on this
/// desktop) belongs to every command that does not say otherwise.
namespace MenuModifier {
inline constexpr int Shift = 1;
inline constexpr int Option = 2; ///< Alt on this desktop
inline constexpr int Control = 4;
inline constexpr int NoCommand = 8;
} // namespace MenuModifier

/// One entry of another application's menu bar, as the application tells it.
struct MenuElement
{
    /// Harmless to show as plain text; empty for separators and the bar itself.
    QString title;
    /// The character of the command's key, or the word for a key that has none ("F11", "Page Up"); empty
    /// when the entry has no key of its own.
    QString commandCharacter;
    /// Bits of `MenuModifier`; nothing when the application gave none or what is no number.
    std::optional<int> modifiers;
    /// The entries of its submenu, as indices into the tree.
    std::vector<int> children;

    friend bool operator==(const MenuElement &, const MenuElement &) = default;
};

/// A menu bar: its first element. Flat, because foreign trees may be deeper than any stack. Every other
/// element is the child of exactly one that stands before it.
struct MenuTree
{
    std::vector<MenuElement> elements;

    friend bool operator==(const MenuTree &, const MenuTree &) = default;
};

} // namespace keyvora
