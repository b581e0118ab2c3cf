// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/atspi/AtspiApplication.h"

#include <QByteArray>
#include <QSet>

#include <optional>
#include <vector>

namespace keyvora {

class BusPipeline;

/// Finds the menu bars of an application, wherever in its windows they hide.
class MenuBarSearch
{
public:
    MenuBarSearch(BusPipeline &bus, AtspiApplication &application);

    /// Looks through all windows. False when the application fell silent; what was found until then counts.
    bool run();

    /// All menu bars, in the order of their windows.
    [[nodiscard]] std::vector<QByteArray> all() const;

    /// The one to read: a bar that takes up room (LibreOffice keeps a second one, whose keys are wrong), in
    /// the active window if possible, else in the oldest. Asks the application once more.
    [[nodiscard]] std::optional<QByteArray> best();

    /// What else in the application can hold menu items on the screen: context menus.
    [[nodiscard]] const std::vector<QByteArray> &looseMenus() const { return m_looseMenus; }

private:
    struct Bar
    {
        QByteArray path;
        size_t window = 0; ///< counted as the application lists them
        int height = 0;
    };
    struct Window
    {
        QByteArray path;
        bool isActive = false;
    };

    void readWindows(const AtspiApplication::Children &windows);
    void look(const QByteArray &path, size_t window);
    void found(const QByteArray &path, AtspiRole role, size_t window);

    BusPipeline &m_bus;
    AtspiApplication &m_application;
    QSet<QByteArray> m_visited;
    std::vector<Window> m_windows;
    std::vector<Bar> m_bars;
    std::vector<QByteArray> m_looseMenus;
};

} // namespace keyvora
