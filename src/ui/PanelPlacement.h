// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

namespace keyvora {

/// Where a panel goes that belongs to the icon at `anchor`: on the inner side of the screen edge that the
/// icon is at, centred on it, and whole within the `available` part of the screen.
QPoint panelPosition(QSize panel, QPoint anchor, const QRect &available);

} // namespace keyvora
