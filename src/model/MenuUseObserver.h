// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

namespace keyvora {

/// Watches for menu commands that the user chooses with the mouse in other applications.
class MenuUseObserver
{
public:
    /// Receives the title of the menu item, on the main thread.
    using MenuActionHandler = std::function<void(const QString &title)>;

    virtual ~MenuUseObserver() = default;

    /// Starts watching; does nothing when it watches already or is not allowed to.
    virtual void start() = 0;

    /// Stops watching; does nothing when it does not.
    virtual void stop() = 0;
};

} // namespace keyvora
