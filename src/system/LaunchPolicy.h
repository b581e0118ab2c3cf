// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/StatusItem.h"

namespace keyvora {

/// How this start of the program came about.
struct Launch
{
    bool isFirstEver = false;
    bool isByHand = false; ///< a person started it: the desktop gave a startup token
};

/// Whether a start opens the main window, given where the tray icon can be seen: the first start always does,
/// a later one only when a person made it and no icon would show them that it runs.
inline bool opensMainWindow(const Launch &launch, StatusItem::Host host)
{
    return launch.isFirstEver || (launch.isByHand && host == StatusItem::Host::None);
}

} // namespace keyvora
