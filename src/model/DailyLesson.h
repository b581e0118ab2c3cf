// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace keyvora {

class AppModel;
class Defaults;
class ShortcutListModel;

/// The lesson of the day: three shortcuts, and in how many days in all the user learned them. A lesson's day
/// turns at midnight UTC, the shortcut of the day at local midnight. Main thread only.
class DailyLesson : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::ShortcutListModel *trio READ trio CONSTANT)
    Q_PROPERTY(qint64 streak READ streak NOTIFY changed)
    Q_PROPERTY(bool isComplete READ isComplete NOTIFY changed)

public:
    /// The model and the store outlive the lesson.
    DailyLesson(AppModel &model, Defaults &defaults, QObject *parent = nullptr);

    /// At most three shortcuts. While the lesson is the selected screen it follows the model and the
    /// language.
    [[nodiscard]] ShortcutListModel *trio() const { return m_trio; }
    /// How many lessons were completed. A missed day takes nothing away.
    [[nodiscard]] qint64 streak() const;
    /// Whether today's lesson is done.
    [[nodiscard]] bool isComplete() const;

    /// Counts today's lesson, once a day, and stores that at once.
    Q_INVOKABLE void complete();

    /// Looks at the clock again; a lesson that is shown does so when a day begins.
    Q_INVOKABLE void refresh();

    /// How long until a day begins here or in UTC, in milliseconds; more than 0 and at most a day, or an hour
    /// more where the clocks are turned back.
    [[nodiscard]] Q_INVOKABLE int millisecondsToNextDay() const;

signals:
    /// The streak, the day, or both.
    void changed();

private:
    void follow();
    [[nodiscard]] QString today() const;

    AppModel &m_model;
    Defaults &m_defaults;
    ShortcutListModel *m_trio;
};

} // namespace keyvora
