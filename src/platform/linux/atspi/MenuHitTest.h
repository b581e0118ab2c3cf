// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/atspi/AtspiApplication.h"

#include <QByteArray>
#include <QPoint>
#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace keyvora {

class BusPipeline;

/// Finds the menu item that an application shows at a point of the screen. Menus answer for themselves alone,
/// so each one is asked, level by level from the menu bar down. A submenu may lie over the menu that it opens
/// from: the deepest one counts.
class MenuHitTest
{
public:
    MenuHitTest(BusPipeline &bus, AtspiApplication &application, QPoint position);

    /// The title of the item at the point, in one of these menu bars and menus or below them; empty when
    /// there is none.
    [[nodiscard]] QString run(const std::vector<QByteArray> &containers);

private:
    /// An object that a menu says is at the point.
    struct Candidate
    {
        std::optional<AtspiRole> role;
        AtspiStates states;
        QRect extents;
        QString name;
        bool hasSubmenu = false;
    };

    void askContainer(const QByteArray &path);
    void readCandidate(const QByteArray &path);
    void readChild(const QByteArray &path);
    void addToNextLevel(const QByteArray &menu);
    /// Goes on with those menus of the level that are open.
    void keepOpenMenus();
    [[nodiscard]] QString hit() const;

    BusPipeline &m_bus;
    AtspiApplication &m_application;
    QPoint m_position;
    QSet<QByteArray> m_visited;
    QSet<QByteArray> m_menus;            ///< found below those that were given
    std::vector<QByteArray> m_level;     ///< the menus to ask
    std::vector<QByteArray> m_nextLevel; ///< the menus that open from those
    std::vector<std::shared_ptr<Candidate>> m_candidates;
};

} // namespace keyvora
