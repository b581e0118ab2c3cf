// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <sys/stat.h>

namespace keyvora {

/// Writes a file and the folders on the way to it.
inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

/// What a file holds; nothing when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file that keeps whoever opens it waiting.
inline bool makeFifo(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

} // namespace keyvora
