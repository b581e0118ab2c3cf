// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

#include <QDate>
#include <QHash>

namespace keyvora {

/// The shortcut of a day: the list in its order, one each day, from the first again each New Year. An invalid
/// date counts as New Year; an empty list gives a shortcut without anything.
Shortcut dailyShortcut(const QList<Shortcut> &shortcuts, QDate day);

/// The lesson of a day, at most three different shortcuts: the day's own, one for the application, and the
/// one most used with the mouse. Where there is no such one, the next in the list after the day's own.
QList<Shortcut> dailyTrio(const QList<Shortcut> &shortcuts, const Shortcut &daily, const QString &activeApp,
                          const QHash<QString, qint64> &usageCounts);

} // namespace keyvora
