// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"
#include "model/AppModel.h"
#include "model/ShortcutListModel.h"
#include "system/AppMenu.h"

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

struct ShortcutListModelForQml
{
    Q_GADGET
    QML_FOREIGN(keyvora::ShortcutListModel)
    QML_NAMED_ELEMENT(ShortcutListModel)
    QML_UNCREATABLE("The application model makes its lists.")
};

} // namespace keyvora
