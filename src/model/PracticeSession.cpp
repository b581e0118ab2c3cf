// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeSession.h"

#include "model/AppModel.h"
#include "model/Localization.h"

#include <algorithm>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

PracticeSession::PracticeSession(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    connect(&m_model, &AppModel::practiceIndexChanged, this, &PracticeSession::taskChanged);
    connect(&m_model, &AppModel::practiceScoreChanged, this, &PracticeSession::scoreChanged);
    connect(&Localization::shared(), &Localization::languageChanged, this, &PracticeSession::followLanguage);
    startOver();
}

Shortcut PracticeSession::current() const
{
    return m_items.isEmpty() ? Shortcut() : m_items.at(m_model.practiceIndex() % m_items.size());
}

int PracticeSession::taskNumber() const
{
    return m_model.practiceIndex() + 1;
}

int PracticeSession::score() const
{
    return m_model.practiceScore();
}

void PracticeSession::take(const KeyPress &press)
{
    if (m_answer == Answer::Unanswered)
        check(press);
    else if (keyTokens(press) == QStringList{u"Return"_s})
        next();
}

void PracticeSession::check(const KeyPress &press)
{
    if (m_answer != Answer::Unanswered || m_items.isEmpty())
        return;
    const Shortcut asked = current();
    const bool isCorrect = isPressOf(press, asked.keys);
    m_capturedKeys = keyTokens(press);
    m_answer = isCorrect ? Answer::Correct : Answer::Wrong;
    m_model.setPracticeAnswered(true);
    if (isCorrect)
        m_model.setPracticeScore(m_model.practiceScore() + 1);
    m_model.recordPracticeResult(asked.id, isCorrect);
    emit answerChanged();
}

void PracticeSession::next()
{
    if (isLastTask()) {
        startOver();
        return;
    }
    clearAnswer();
    m_model.setPracticeIndex(m_model.practiceIndex() + 1);
}

void PracticeSession::startOver()
{
    m_items = m_model.weightedPracticeItems(tasksPerRound);
    clearAnswer();
    m_model.setPracticeIndex(0);
    m_model.setPracticeScore(0);
    emit taskChanged();
}

void PracticeSession::clearAnswer()
{
    m_capturedKeys.clear();
    m_model.setPracticeAnswered(false);
    if (std::exchange(m_answer, Answer::Unanswered) != Answer::Unanswered)
        emit answerChanged();
}

void PracticeSession::followLanguage()
{
    // The round stays, in other words. Own shortcuts have one wording, and may share an id with another one;
    // what was deleted meanwhile is asked as it was.
    const QList<Shortcut> all = m_model.allShortcuts();
    for (Shortcut &item : m_items) {
        const auto translated = std::ranges::find_if(all, [&](const Shortcut &shortcut) {
            return shortcut.id == item.id && shortcut.keys == item.keys;
        });
        if (translated != all.end() && !m_model.customShortcuts().contains(item))
            item = *translated;
    }
    emit taskChanged();
}

} // namespace keyvora
