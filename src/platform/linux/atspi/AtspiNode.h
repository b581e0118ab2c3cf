// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstdint>

namespace keyvora {

/// The roles of accessible objects that matter here.
/// https://gnome.pages.gitlab.gnome.org/at-spi2-core/libatspi/enum.Role.html
enum class AtspiRole : uint32_t {
    CheckMenuItem = 8,
    List = 31,
    Menu = 33,
    MenuBar = 34,
    MenuItem = 35,
    PopupMenu = 41,
    RadioMenuItem = 45,
    Table = 55,
    TableCell = 56,
    Terminal = 60,
    Text = 61,
    Tree = 65,
    TreeTable = 66,
    Entry = 79,
    DocumentFrame = 82,
    DocumentText = 94,
    DocumentWeb = 95,
};

/// The states of an accessible object, one bit each.
/// https://gnome.pages.gitlab.gnome.org/at-spi2-core/libatspi/enum.StateType.html
class AtspiStates
{
public:
    AtspiStates() = default;
    explicit AtspiStates(uint64_t bits)
        : m_bits(bits)
    {
    }

    [[nodiscard]] bool isActive() const { return has(1); }
    /// Present, though perhaps in a closed menu. Toolkits disagree on both of these; together they can be
    /// believed.
    [[nodiscard]] bool isVisible() const { return has(30); }
    [[nodiscard]] bool isShowing() const { return has(25); }
    [[nodiscard]] bool isOnScreen() const { return isVisible() && isShowing(); }

private:
    [[nodiscard]] bool has(int bit) const { return ((m_bits >> static_cast<unsigned>(bit)) & 1U) != 0; }

    uint64_t m_bits = 0;
};

/// The entries of menus, whether or not a submenu hangs on them.
[[nodiscard]] constexpr bool isMenuItem(AtspiRole role)
{
    return role == AtspiRole::MenuItem || role == AtspiRole::CheckMenuItem ||
           role == AtspiRole::RadioMenuItem;
}

/// What holds the entries of a menu.
[[nodiscard]] constexpr bool isMenu(AtspiRole role)
{
    return role == AtspiRole::Menu || role == AtspiRole::PopupMenu;
}

/// Large things that hold no menus. Menu bars hide in the oddest places, such as tool bars, but not in these.
[[nodiscard]] constexpr bool isContent(AtspiRole role)
{
    switch (role) {
    case AtspiRole::List:
    case AtspiRole::Table:
    case AtspiRole::TableCell:
    case AtspiRole::Terminal:
    case AtspiRole::Text:
    case AtspiRole::Tree:
    case AtspiRole::TreeTable:
    case AtspiRole::Entry:
    case AtspiRole::DocumentFrame:
    case AtspiRole::DocumentText:
    case AtspiRole::DocumentWeb:
        return true;
    default:
        return false;
    }
}

/// The object that stands for the whole application.
inline const QByteArray atspiRootPath = "/org/a11y/atspi/accessible/root";

} // namespace keyvora
