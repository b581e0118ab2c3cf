// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/DocumentClock.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

DocumentClock documentClock(const QProcessEnvironment &environment)
{
    bool isFixed = false;
    const qint64 seconds = environment.value(u"SOURCE_DATE_EPOCH"_s).toLongLong(&isFixed);
    QDateTime fixed = isFixed ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime();
    // A document's date has a year of four digits.
    if (fixed.isValid() && fixed.date().year() >= 1970 && fixed.date().year() <= 9999)
        return [fixed] {
            return fixed;
        };
    return &QDateTime::currentDateTimeUtc;
}

} // namespace keyvora
