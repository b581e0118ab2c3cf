// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "dialogs/BackupFile.h"

#include "platform/AtomicFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keyvora {

std::optional<Backup> readBackupFile(const QString &path)
{
    // Nobody may ever write into a named pipe, and a device may never end: neither is waited for.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (descriptor < 0)
        return std::nullopt;
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        close(descriptor);
        return std::nullopt;
    }
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > BackupLimits::fileBytes)
        return std::nullopt;
    return decodeBackup(file);
}

bool writeBackupFile(const QString &path, const Backup &backup)
{
    const QByteArray bytes = encodeBackup(backup);
    return !bytes.isEmpty() && replaceFile(path, bytes);
}

} // namespace keyvora
