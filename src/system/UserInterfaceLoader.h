// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "system/UserInterface.h"

#include <memory>

namespace keyvora {

/// Loads the user interface when it is first needed.
class UserInterfaceLoader
{
public:
    using ContextFactory = std::function<UserInterface::Context()>;

    /// The context is made at the first call of `get`.
    UserInterfaceLoader(QString libraryPath, ContextFactory makeContext);

    /// The user interface; null when the installation lacks its library.
    UserInterface *get();

    /// The user interface if it has been loaded, else null; loads nothing.
    [[nodiscard]] UserInterface *loaded() const { return m_userInterface.get(); }

private:
    QString m_libraryPath;
    ContextFactory m_makeContext;
    std::unique_ptr<UserInterface> m_userInterface;
};

} // namespace keyvora
