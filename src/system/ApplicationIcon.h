// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

namespace keyvora {

/// The program's own icon, for its windows and the tray.
QIcon applicationIcon();

} // namespace keyvora
