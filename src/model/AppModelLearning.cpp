// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The shortcut of the day, and practice.

#include "model/AppModel.h"
#include "model/Assign.h"
#include "model/CountUp.h"
#include "model/DailyShortcuts.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"

namespace keyvora {

Shortcut AppModel::dailyShortcut() const
{
    return keyvora::dailyShortcut(allShortcuts(), m_services.now().toLocalTime().date());
}

QList<Shortcut> AppModel::weightedPracticeItems(qsizetype count) const
{
    return keyvora::weightedPracticeItems(allShortcuts(), m_practiceStats, count, m_services.uniformRandom);
}

void AppModel::recordPracticeResult(const QString &shortcutId, bool correct)
{
    PracticeStat &stat = m_practiceStats[shortcutId];
    countUp(stat.seen);
    if (!correct)
        countUp(stat.wrong);
    m_services.defaults.setData(DefaultsKeys::practiceStats, encodePracticeStats(m_practiceStats));
    emit practiceStatsChanged();
}

void AppModel::setPracticeIndex(int index)
{
    if (assign(m_practiceIndex, index))
        emit practiceIndexChanged();
}

void AppModel::setPracticeScore(int score)
{
    if (assign(m_practiceScore, score))
        emit practiceScoreChanged();
}

void AppModel::setPracticeAnswered(bool answered)
{
    if (assign(m_practiceAnswered, answered))
        emit practiceAnsweredChanged();
}

} // namespace keyvora
