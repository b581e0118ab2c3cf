// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UserInterfaceLoader.h"

#include <QLibrary>

#include <utility>

namespace keyvora {

UserInterfaceLoader::UserInterfaceLoader(QString libraryPath, ContextFactory makeContext)
    : m_libraryPath(std::move(libraryPath))
    , m_makeContext(std::move(makeContext))
{
}

UserInterface *UserInterfaceLoader::get()
{
    if (m_userInterface)
        return m_userInterface.get();
    QLibrary library(m_libraryPath);
    const auto create = reinterpret_cast<CreateUserInterface>(library.resolve(createUserInterfaceSymbol));
    if (create == nullptr) {
        qCritical("Keyvora's user interface cannot be loaded: %ls", qUtf16Printable(library.errorString()));
        return nullptr;
    }
    m_userInterface.reset(create(m_makeContext()));
    return m_userInterface.get();
}

} // namespace keyvora
