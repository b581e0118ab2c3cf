// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DailyLesson.h"
#include "model/FirstAidModel.h"
#include "model/PracticeSession.h"
#include "model/VisualKeyboard.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace keyvora {

/// What the learning screens show. It outlives them, so that a round of practice survives a look elsewhere.
class Learning : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::VisualKeyboard *keyboard READ keyboard CONSTANT)
    Q_PROPERTY(keyvora::FirstAidModel *firstAid READ firstAid CONSTANT)
    Q_PROPERTY(keyvora::DailyLesson *lesson READ lesson CONSTANT)
    Q_PROPERTY(keyvora::PracticeSession *practice READ practice CONSTANT)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    /// The model and the store outlive it.
    Learning(AppModel &model, Defaults &defaults, QObject *parent = nullptr);

    [[nodiscard]] VisualKeyboard *keyboard() { return &m_keyboard; }
    [[nodiscard]] FirstAidModel *firstAid() { return &m_firstAid; }
    [[nodiscard]] DailyLesson *lesson() { return &m_lesson; }
    [[nodiscard]] PracticeSession *practice() { return &m_practice; }

private:
    VisualKeyboard m_keyboard;
    FirstAidModel m_firstAid;
    DailyLesson m_lesson;
    PracticeSession m_practice;
};

} // namespace keyvora
