// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace keyvora {

/// A situation in which a user needs help at once.
struct FirstAidGroup
{
    QString id;
    QString title;     ///< in the language asked for
    QString symbol;    ///< name of the symbol
    QStringList items; ///< ids of the catalog's shortcuts that help, the first one first
};

/// All situations in the order of display.
std::vector<FirstAidGroup> firstAidGroups(AppLanguage language);

} // namespace keyvora
