// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace keyvora {

namespace {

/// A rename survives a power cut only once the folder that holds the name is on disk.
void syncFolder(const QByteArray &path)
{
    const int folder = open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

bool failed(QString *reason, const QString &text)
{
    if (reason != nullptr)
        *reason = text;
    return false;
}

} // namespace

bool replaceFile(const QString &filePath, const QByteArray &content, QString *reason)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(filePath).path());
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(folder.toStdString()), error);
    if (error)
        return failed(reason, QString::fromLocal8Bit(error.message()));

    QSaveFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        return failed(reason, file.errorString());
    if (fsync(file.handle()) != 0)
        return failed(reason, QString::fromLocal8Bit(std::generic_category().message(errno)));
    if (!file.commit())
        return failed(reason, file.errorString());
    syncFolder(folder);
    return true;
}

} // namespace keyvora
