// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MenuTree.h"

#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace keyvora {

inline MenuElement menuItem(const QString &title, const QString &commandCharacter,
                            std::optional<int> modifiers = 0, std::vector<int> children = {})
{
    return {title, commandCharacter, modifiers, std::move(children)};
}

/// A bar with these entries and nothing below them.
inline MenuTree menuOf(const QList<MenuElement> &items)
{
    MenuTree tree{.elements = {MenuElement()}};
    for (const MenuElement &item : items) {
        tree.elements.front().children.push_back(static_cast<int>(tree.elements.size()));
        tree.elements.push_back(item);
    }
    return tree;
}

} // namespace keyvora
