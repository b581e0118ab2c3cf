// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"
#include "model/AppModel.h"
#include "model/CustomShortcutDraft.h"
#include "model/DailyLesson.h"
#include "model/FirstAidModel.h"
#include "model/KeyPress.h"
#include "model/PracticeSession.h"
#include "model/ShortcutListModel.h"
#include "model/VisualKeyboard.h"
#include "system/AppMenu.h"
#include "update/UpdateChecker.h"

#include <QtQml/qqmlregistration.h>

// What QML may name of the types that know nothing of QML.
namespace keyvora {

struct AppModelForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_UNCREATABLE("The program has one; it comes in as a property.")
};

struct AppMenuForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::AppMenu)
    QML_NAMED_ELEMENT(AppMenu)
    QML_UNCREATABLE("The program has one; it comes in as a property.")
};

struct UpdateCheckerForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::UpdateChecker)
    QML_NAMED_ELEMENT(UpdateChecker)
    QML_UNCREATABLE("The program has one; it comes in as a property.")
};

struct KeyPressForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::KeyPress)
    QML_VALUE_TYPE(keyPress)
};

struct ShortcutListModelForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::ShortcutListModel)
    QML_NAMED_ELEMENT(ShortcutListModel)
    QML_UNCREATABLE("The application model makes its lists.")
};

struct CustomShortcutDraftForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::CustomShortcutDraft)
    QML_NAMED_ELEMENT(CustomShortcutDraft)
    QML_UNCREATABLE("It comes in with the user's own shortcuts.")
};

struct DailyLessonForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::DailyLesson)
    QML_NAMED_ELEMENT(DailyLesson)
    QML_UNCREATABLE("The learning screens come in as one property.")
};

struct FirstAidModelForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::FirstAidModel)
    QML_NAMED_ELEMENT(FirstAidModel)
    QML_UNCREATABLE("The learning screens come in as one property.")
};

struct PracticeSessionForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::PracticeSession)
    QML_NAMED_ELEMENT(PracticeSession)
    QML_UNCREATABLE("The learning screens come in as one property.")
};

struct VisualKeyboardForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::VisualKeyboard)
    QML_NAMED_ELEMENT(VisualKeyboard)
    QML_UNCREATABLE("The learning screens come in as one property.")
};

} // namespace keyvora
