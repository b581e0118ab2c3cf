// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Backup.h"
#include "model/PracticeStat.h"
#include "model/Shortcut.h"
#include "model/SidebarSelection.h"
#include "platform/PlatformError.h"
#include "unit/QtPrinters.h"

// How GoogleTest shows the model's values when an expectation fails.
namespace keyvora {

inline void PrintTo(const Shortcut &shortcut, std::ostream *stream)
{
    ::PrintTo(toJson(shortcut), stream);
}

inline void PrintTo(Shortcut::Category category, std::ostream *stream)
{
    ::PrintTo(rawValue(category), stream);
}

inline void PrintTo(const Backup &backup, std::ostream *stream)
{
    ::PrintTo(encodeBackup(backup), stream);
}

inline void PrintTo(const PracticeStat &stat, std::ostream *stream)
{
    *stream << stat.wrong << " wrong of " << stat.seen;
}

inline void PrintTo(const SidebarSelection &selection, std::ostream *stream)
{
    *stream << "selection " << static_cast<int>(selection.kind) << ' ';
    PrintTo(selection.category, stream);
}

inline void PrintTo(const PlatformError &error, std::ostream *stream)
{
    ::PrintTo(error.description, stream);
}

} // namespace keyvora
