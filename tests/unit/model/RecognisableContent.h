// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

/// What the writing program of the durability tests stores, so that a test can tell a whole value from a torn
/// one.
namespace keyvora::RecognisableContent {

inline constexpr QLatin1StringView key{"lines"};
inline constexpr qsizetype maximumLineCount = 300;

/// The value that has this many lines; each says its number and is long enough to take several writes
/// together.
inline QStringList lines(qsizetype count)
{
    QStringList result;
    for (qsizetype i = 1; i <= count; ++i)
        result.append(QString::number(i) + QString(200 + i, QLatin1Char(static_cast<char>('a' + i % 26))));
    return result;
}

/// The number of lines that follows; it begins again at one.
inline qsizetype nextLineCount(qsizetype count)
{
    return count >= maximumLineCount ? 1 : count + 1;
}

} // namespace keyvora::RecognisableContent
