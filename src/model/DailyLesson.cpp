// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DailyLesson.h"

#include "model/AppModel.h"
#include "model/CountUp.h"
#include "model/DailyShortcuts.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"
#include "model/Localization.h"
#include "model/ShortcutListModel.h"

#include <algorithm>

namespace keyvora {

DailyLesson::DailyLesson(AppModel &model, Defaults &defaults, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_defaults(defaults)
    , m_trio(model.makeListModel(this))
{
    follow();
    connect(&m_model, &AppModel::selectionChanged, this, &DailyLesson::follow);
    connect(&m_model, &AppModel::activeAppChanged, this, &DailyLesson::follow);
    connect(&m_model, &AppModel::usageCountsChanged, this, &DailyLesson::follow);
    connect(&m_model, &AppModel::customShortcutsChanged, this, &DailyLesson::follow);
    connect(&Localization::shared(), &Localization::languageChanged, this, &DailyLesson::follow);
}

void DailyLesson::follow()
{
    // Unseen, it would look through the whole library at each change of the application in front.
    if (m_model.selection().kind == SidebarSelection::Kind::daily)
        refresh();
}

void DailyLesson::refresh()
{
    m_trio->setShortcuts(dailyTrio(m_model.allShortcuts(), m_model.dailyShortcut(), m_model.activeApp(),
                                   m_model.usageCounts()));
    emit changed();
}

QString DailyLesson::today() const
{
    return m_model.now().toUTC().date().toString(Qt::ISODate);
}

qint64 DailyLesson::streak() const
{
    return m_defaults.integer(DefaultsKeys::learningStreak).value_or(0);
}

bool DailyLesson::isComplete() const
{
    return m_defaults.text(DefaultsKeys::lastLearnedDay) == today();
}

void DailyLesson::complete()
{
    if (isComplete())
        return;
    qint64 count = streak();
    countUp(count);
    // Counted without its day, it would count again.
    m_defaults.changeTogether([&] {
        m_defaults.setInteger(DefaultsKeys::learningStreak, count);
        m_defaults.setText(DefaultsKeys::lastLearnedDay, today());
    });
    emit changed();
}

int DailyLesson::millisecondsToNextDay() const
{
    const QDateTime now = m_model.now();
    const QDateTime here = now.toLocalTime().date().addDays(1).startOfDay();
    const QDateTime inUtc = now.toUTC().date().addDays(1).startOfDay(Qt::UTC);
    return static_cast<int>(std::max(qint64{1}, std::min(now.msecsTo(here), now.msecsTo(inUtc))));
}

} // namespace keyvora
