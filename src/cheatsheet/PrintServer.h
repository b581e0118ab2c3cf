// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>

namespace keyvora {

/// Whether the toolkit can ask for printers without standing still: the print server answers, or there is
/// none. False when it keeps us waiting for seconds. Finishes in the background; to be called on the main
/// thread.
QFuture<bool> isPrintServerResponsive();

} // namespace keyvora
