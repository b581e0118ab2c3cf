// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QProcessEnvironment>

#include <functional>

namespace keyvora {

/// Tells the time that a document bears as its own.
using DocumentClock = std::function<QDateTime()>;

/// The time of day; where the environment fixes one for reproducible files (SOURCE_DATE_EPOCH, in seconds),
/// always that.
DocumentClock documentClock(const QProcessEnvironment &environment);

} // namespace keyvora
