// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeDraw.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Away from 0, where every weight would lose alike.
constexpr double lowestDraw = 0.0001;
constexpr double weightOfUnpractised = 3.0;
constexpr double lowestWeight = 0.05;

bool isEligible(const Shortcut &shortcut)
{
    return !shortcut.keys.contains(u"→"_s) && !practiceUnsafeIDs().contains(shortcut.id);
}

} // namespace

UniformRandom systemRandom()
{
    return [] {
        // As many bits as a double tells apart.
        constexpr int bits = std::numeric_limits<double>::digits;
        constexpr auto largest = static_cast<double>((quint64{1} << bits) - 1);
        return static_cast<double>(QRandomGenerator::global()->generate64() >> (64 - bits)) / largest;
    };
}

const QSet<QString> &practiceUnsafeIDs()
{
    static const QSet<QString> ids{
        u"emoji"_s,       u"spotlight"_s,      u"shot-full"_s,    u"shot-area"_s, u"shot-tools"_s,
        u"lock"_s,        u"shot-clipboard"_s, u"logout"_s,       u"desktop"_s,   u"mission-control"_s,
        u"app-windows"_s, u"dock-toggle"_s,    u"space-left"_s,   u"quit"_s,      u"space-right"_s,
        u"hide"_s,        u"input-source"_s,   u"close-window"_s, u"minimize"_s,
    };
    return ids;
}

double practiceWeight(const PracticeStat &stat)
{
    if (stat.seen < 1)
        return weightOfUnpractised;
    const double wrongShare = static_cast<double>(stat.wrong) / static_cast<double>(stat.seen);
    // The store may hold anything.
    return std::max(wrongShare * 4.0 + 1.0, lowestWeight);
}

QList<Shortcut> weightedPracticeItems(const QList<Shortcut> &shortcuts,
                                      const QHash<QString, PracticeStat> &stats, qsizetype count,
                                      const UniformRandom &uniform)
{
    if (count < 0)
        qFatal("a practice set of %lld shortcuts", static_cast<long long>(count));
    struct Candidate
    {
        double key;
        const Shortcut *shortcut;
    };
    std::vector<Candidate> candidates;
    for (const Shortcut &shortcut : shortcuts) {
        if (!isEligible(shortcut))
            continue;
        const double draw = lowestDraw + uniform() * (1.0 - lowestDraw);
        candidates.push_back({std::pow(draw, 1.0 / practiceWeight(stats.value(shortcut.id))), &shortcut});
    }
    std::ranges::stable_sort(candidates, std::ranges::greater{}, &Candidate::key);
    QList<Shortcut> drawn;
    for (const Candidate &candidate : candidates) {
        if (drawn.size() == count)
            break;
        drawn.append(*candidate.shortcut);
    }
    return drawn;
}

} // namespace keyvora
