// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <functional>
#include <gtest/gtest.h>

namespace keyvora {

/// Makes the checks over every file that a fuzzer begins with; they end the program where something does not
/// hold.
inline void forEachSeed(const char *area,
                        const std::function<void(const QString &name, const QByteArray &bytes)> &check)
{
    constexpr qsizetype fewest = 10;
    const QDir folder(QStringLiteral(KEYVORA_TEST_DATA "/") + QLatin1StringView(area));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    ASSERT_GE(names.size(), fewest) << area;
    for (const QString &name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        check(name, file.readAll());
    }
}

} // namespace keyvora
