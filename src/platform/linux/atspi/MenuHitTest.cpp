// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/MenuHitTest.h"

#include "platform/linux/atspi/BusPipeline.h"
#include "platform/linux/atspi/MenuTreeReader.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace keyvora {

namespace {

/// No menu of a person's is nested deeper.
constexpr int maximumDepth = 12;
constexpr qsizetype maximumVisited = 5000;
/// Of those that are given, and of those below them.
constexpr size_t maximumMenus = 1000;

} // namespace

MenuHitTest::MenuHitTest(BusPipeline &bus, AtspiApplication &application, QPoint position)
    : m_bus(bus)
    , m_application(application)
    , m_position(position)
{
}

QString MenuHitTest::run(const std::vector<QByteArray> &containers)
{
    m_bus.run(); // what was asked before, such as the toolkit's name, decides what is asked now
    m_level = containers;
    m_level.resize(std::min(m_level.size(), maximumMenus));
    QString title;
    for (int depth = 0; depth < maximumDepth && !m_level.empty(); ++depth) {
        if (!title.isEmpty())
            keepOpenMenus();
        m_nextLevel.clear();
        m_candidates.clear();
        for (const QByteArray &path : m_level)
            askContainer(path);
        if (!m_bus.run())
            return title;
        if (QString deeper = hit(); !deeper.isEmpty())
            title = std::move(deeper);
        m_level = std::exchange(m_nextLevel, {});
    }
    return title;
}

void MenuHitTest::keepOpenMenus()
{
    std::vector<QByteArray> open;
    for (const QByteArray &menu : m_level) {
        m_application.states(menu, [&open, &menu](const AtspiStates &states) {
            if (states.isOnScreen())
                open.push_back(menu);
        });
    }
    m_bus.run();
    m_level = std::move(open);
}

void MenuHitTest::askContainer(const QByteArray &path)
{
    m_application.accessibleAt(path, m_position, [this](const std::optional<QByteArray> &answer) {
        if (answer)
            readCandidate(*answer);
    });
    m_application.children(path, [this](const AtspiApplication::Children &children) {
        for (const QByteArray &child : children)
            readChild(child);
    });
}

void MenuHitTest::readCandidate(const QByteArray &path)
{
    const auto candidate = std::make_shared<Candidate>();
    m_candidates.push_back(candidate);
    m_application.role(path, [candidate](const std::optional<AtspiRole> &role) { candidate->role = role; });
    m_application.states(path, [candidate](const AtspiStates &states) { candidate->states = states; });
    m_application.extents(path, [candidate](const QRect &extents) { candidate->extents = extents; });
    m_application.name(path, [candidate](const QString &name) { candidate->name = name; });
    if (m_application.isQt()) {
        m_application.children(path, [candidate](const AtspiApplication::Children &submenus) {
            candidate->hasSubmenu = !submenus.empty();
        });
    }
}

void MenuHitTest::readChild(const QByteArray &path)
{
    if (m_visited.size() >= maximumVisited || m_visited.contains(path))
        return;
    m_visited.insert(path);
    m_application.role(path, [this, path](const std::optional<AtspiRole> &role) {
        if (!role)
            return;
        if (isMenu(*role)) {
            addToNextLevel(path);
        } else if (isMenuItem(*role) && m_application.isQt()) {
            m_application.children(path, [this](const AtspiApplication::Children &submenus) {
                for (const QByteArray &submenu : submenus)
                    addToNextLevel(submenu);
            });
        }
    });
}

void MenuHitTest::addToNextLevel(const QByteArray &menu)
{
    if (m_menus.size() >= static_cast<qsizetype>(maximumMenus) || m_menus.contains(menu))
        return;
    m_menus.insert(menu);
    m_nextLevel.push_back(menu);
}

QString MenuHitTest::hit() const
{
    for (const auto &candidate : m_candidates) {
        // Closed menus answer, too.
        if (candidate->role && isMenuItem(*candidate->role) && !candidate->hasSubmenu &&
            candidate->states.isOnScreen() && candidate->extents.contains(m_position))
            return menuTitle(candidate->name);
    }
    return {};
}

} // namespace keyvora
