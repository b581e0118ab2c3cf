// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/StatusIcon.h"

#include <QIcon>
#include <QStringList>

namespace keyvora {

/// The program's own icon, for its windows.
QIcon applicationIcon();

/// Its icon for the tray. `dataDirs` holds the folders that have an "icons" folder, where the program may be
/// installed.
StatusIcon trayIcon(const QStringList &dataDirs);

} // namespace keyvora
