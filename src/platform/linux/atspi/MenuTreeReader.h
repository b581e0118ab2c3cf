// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MenuTree.h"
#include "platform/linux/atspi/AtspiApplication.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <deque>
#include <optional>
#include <vector>

namespace keyvora {

class BusPipeline;

/// Reads a menu bar with all its menus, without opening any.
class MenuTreeReader
{
public:
    MenuTreeReader(BusPipeline &bus, AtspiApplication &application);

    /// The whole tree, or the part of it that the application told until it fell silent.
    [[nodiscard]] MenuTree read(const QByteArray &menuBar);

private:
    /// An object that may turn out to be a menu or an entry of one.
    struct Node
    {
        QByteArray path;
        bool isListed = false; ///< is a menu or an entry, and not hidden by the application
        QString title = {};
        QString keyBinding = {};
        std::vector<size_t> children = {};
    };

    void readChildren(size_t node);
    void addChildren(size_t node, const AtspiApplication::Children &paths);
    void readNode(size_t node, AtspiRole role);
    void readEntry(size_t node);
    void readTitle(size_t node);
    void readKeyBinding(size_t node);
    [[nodiscard]] MenuTree tree() const;

    BusPipeline &m_bus;
    AtspiApplication &m_application;
    QSet<QByteArray> m_visited;
    std::deque<Node> m_nodes; ///< the bar first
};

/// The title of a menu entry as a person sees it: without the padding and the key text behind a tab that some
/// programs put there, harmless to show, of limited length.
[[nodiscard]] QString menuTitle(const QString &name);

} // namespace keyvora
