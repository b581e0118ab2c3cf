// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DisplayableShortcut.h"
#include "model/KeyPress.h"
#include "model/Shortcut.h"

#include <QObject>

namespace keyvora {

class AppModel;

/// The practice quiz: rounds of tasks, each a shortcut whose keys are to be pressed. Position and score are
/// the model's; a round, once drawn, stays as it is until it ends. Main thread only.
class PracticeSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY taskChanged)
    Q_PROPERTY(QStringList keys READ keys NOTIFY taskChanged)
    Q_PROPERTY(int taskNumber READ taskNumber NOTIFY taskChanged)
    Q_PROPERTY(int taskCount READ taskCount NOTIFY taskChanged)
    Q_PROPERTY(bool isLastTask READ isLastTask NOTIFY taskChanged)
    Q_PROPERTY(int score READ score NOTIFY scoreChanged)
    Q_PROPERTY(Answer answer READ answer NOTIFY answerChanged)
    Q_PROPERTY(QStringList capturedKeys READ capturedKeys NOTIFY answerChanged)

public:
    enum class Answer : quint8 {
        Unanswered,
        Correct,
        Wrong,
    };
    Q_ENUM(Answer)

    static constexpr int tasksPerRound = 8;

    /// Draws the first round. The model outlives the session.
    explicit PracticeSession(AppModel &model, QObject *parent = nullptr);

    /// The shortcut that is asked for, in the current language. Nothing in it where no shortcut can be asked.
    [[nodiscard]] Shortcut current() const;
    [[nodiscard]] QString title() const { return displayableTitle(current()); }
    [[nodiscard]] QStringList keys() const { return displayableKeys(current()); }
    /// Counted from 1.
    [[nodiscard]] int taskNumber() const;
    [[nodiscard]] int taskCount() const { return static_cast<int>(m_items.size()); }
    [[nodiscard]] bool isLastTask() const { return taskNumber() >= taskCount(); }
    /// Correct answers in this round.
    [[nodiscard]] int score() const;
    [[nodiscard]] Answer answer() const { return m_answer; }
    /// What the user pressed as the answer; empty before.
    [[nodiscard]] const QStringList &capturedKeys() const { return m_capturedKeys; }

    /// Takes a press from the field: as the answer or, once there is one, Return alone as the wish to go on.
    Q_INVOKABLE void take(const keyvora::KeyPress &press);
    /// Takes a press as the answer to the current task and records it; after the first one does nothing.
    void check(const KeyPress &press);
    /// Goes to the next task, after the last one to a new round. A task without an answer is skipped.
    Q_INVOKABLE void next();
    /// Begins a new round.
    Q_INVOKABLE void startOver();

signals:
    void taskChanged();
    void scoreChanged();
    void answerChanged();

private:
    void clearAnswer();
    void followLanguage();

    AppModel &m_model;
    QList<Shortcut> m_items;
    QStringList m_capturedKeys;
    Answer m_answer = Answer::Unanswered;
};

} // namespace keyvora
