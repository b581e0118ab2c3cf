// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/PracticeStat.h"
#include "model/Shortcut.h"

#include <QSet>

#include <functional>

namespace keyvora {

/// Uniformly distributed numbers from the closed interval [0, 1].
using UniformRandom = std::function<double()>;

/// The system's random source.
UniformRandom systemRandom();

/// Shortcuts of the catalog that are never asked for: pressing them would do something to the whole system,
/// or end or hide this program.
const QSet<QString> &practiceUnsafeIDs();

/// How strongly the draw favours a shortcut: 3 for one that was never answered, else from 1 (never wrong) to
/// 5 (always wrong).
double practiceWeight(const PracticeStat &stat);

/// Draws at most `count` different shortcuts at random, weighted by how much practice each needs. Those that
/// hold the right arrow, which also parts steps, and the unsafe ones are left out. This is sampling without
/// replacement after Efraimidis and Spirakis, "Weighted random sampling with a reservoir", 2006: the largest
/// of u^(1/w) win. `count` is not negative.
QList<Shortcut> weightedPracticeItems(const QList<Shortcut> &shortcuts,
                                      const QHash<QString, PracticeStat> &stats, qsizetype count,
                                      const UniformRandom &uniform);

} // namespace keyvora
