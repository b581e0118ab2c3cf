// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/Learning.h"

namespace keyvora {

Learning::Learning(AppModel &model, Defaults &defaults, QObject *parent)
    : QObject(parent)
    , m_keyboard(model)
    , m_firstAid(model)
    , m_lesson(model, defaults)
    , m_practice(model)
{
}

} // namespace keyvora
