// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/MenuBarSearch.h"

#include "platform/linux/atspi/BusPipeline.h"

#include <algorithm>

namespace keyvora {

namespace {

constexpr qsizetype maximumSearched = 20'000;

} // namespace

MenuBarSearch::MenuBarSearch(BusPipeline &bus, AtspiApplication &application)
    : m_bus(bus)
    , m_application(application)
{
}

bool MenuBarSearch::run()
{
    m_visited.insert(atspiRootPath);
    m_application.children(atspiRootPath,
                           [this](const AtspiApplication::Children &windows) { readWindows(windows); });
    const bool isComplete = m_bus.run();
    // Answers come as they come; windows have an order.
    std::ranges::stable_sort(m_bars, {}, &Bar::window);
    return isComplete;
}

void MenuBarSearch::readWindows(const AtspiApplication::Children &windows)
{
    for (const QByteArray &path : windows) {
        const size_t window = m_windows.size();
        m_windows.push_back({.path = path});
        look(path, window);
    }
}

void MenuBarSearch::look(const QByteArray &path, size_t window)
{
    if (m_visited.size() >= maximumSearched || m_visited.contains(path))
        return;
    m_visited.insert(path);
    m_application.role(path, [this, path, window](const std::optional<AtspiRole> &role) {
        if (role)
            found(path, *role, window);
    });
}

void MenuBarSearch::found(const QByteArray &path, AtspiRole role, size_t window)
{
    if (role == AtspiRole::MenuBar) {
        m_bars.push_back({.path = path, .window = window});
    } else if (isMenu(role)) {
        m_looseMenus.push_back(path);
    } else if (!isContent(role) && !isMenuItem(role)) {
        m_application.children(path, [this, window](const AtspiApplication::Children &children) {
            for (const QByteArray &child : children)
                look(child, window);
        });
    }
}

std::vector<QByteArray> MenuBarSearch::all() const
{
    std::vector<QByteArray> paths;
    paths.reserve(m_bars.size());
    for (const Bar &bar : m_bars)
        paths.push_back(bar.path);
    return paths;
}

std::optional<QByteArray> MenuBarSearch::best()
{
    if (m_bars.empty())
        return std::nullopt;
    if (m_bars.size() > 1) {
        for (Bar &bar : m_bars) {
            m_application.extents(bar.path, [&bar](const QRect &extents) { bar.height = extents.height(); });
            Window &window = m_windows[bar.window];
            m_application.states(
                window.path, [&window](const AtspiStates &states) { window.isActive = states.isActive(); });
        }
        m_bus.run();
    }
    const auto preference = [this](const Bar &bar) {
        return std::pair(bar.height > 0, m_windows[bar.window].isActive);
    };
    return std::ranges::max_element(m_bars, {}, preference)->path;
}

} // namespace keyvora
