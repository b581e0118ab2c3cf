// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"
#include "model/Shortcut.h"

namespace keyvora {

/// One row of the built-in catalog, with its texts in both languages.
struct ShortcutSeed
{
    QString id;
    QString titleCS;
    QString titleEN;
    QStringList keys;
    Shortcut::Category category;
    QStringList apps;
    QString detailCS;
    QString detailEN;
};

/// The built-in catalog. Main thread only.
class ShortcutLibrary
{
public:
    /// The catalog's rows in their own order, which is the library's. Built once.
    static const QList<ShortcutSeed> &seeds();

    /// The catalog in one language; built at the first call for that language and kept.
    static const QList<Shortcut> &all(AppLanguage language);
};

} // namespace keyvora
