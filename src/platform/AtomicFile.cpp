// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/AtomicFile.h"

#include <QFile>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace keyvora {

namespace {

namespace fs = std::filesystem;

/// Behind a file's name, followed by letters drawn by lot: no name that a person would give to a copy.
constexpr std::string_view temporaryMark = ".part-";
constexpr std::string_view lotLetters = "abcdefghijklmnopqrstuvwxyz";
constexpr size_t lotLength = 6;

/// The file that is meant where the path is a link to it, even when it is not there.
fs::path linkTarget(fs::path path)
{
    constexpr int maximumLinks = 40; // as the system itself counts
    std::error_code error;
    for (int i = 0; i < maximumLinks && fs::is_symlink(path, error); ++i)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

fs::path pathFrom(const QString &path)
{
    return linkTarget(QFile::encodeName(path).toStdString());
}

fs::path folderOf(const fs::path &target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

/// What the names of a file's temporary files begin with; shortened so that they are never too long for the
/// disk.
std::string temporaryPrefix(const fs::path &target)
{
    constexpr size_t maximumLength = 200;
    return target.filename().string().substr(0, maximumLength).append(temporaryMark);
}

bool isTemporaryName(std::string_view name, std::string_view prefix)
{
    return name.size() == prefix.size() + lotLength && name.starts_with(prefix) &&
           name.find_first_not_of(lotLetters, prefix.size()) == std::string_view::npos;
}

/// A new file that nobody else has: its descriptor, and its path in `path`; -1 with `errno` when there is
/// none.
int openTemporary(const fs::path &target, mode_t rights, fs::path &path)
{
    constexpr int maximumTries = 100;
    for (int i = 0; i < maximumTries; ++i) {
        std::string name = temporaryPrefix(target);
        std::generate_n(std::back_inserter(name), lotLength, [] {
            return lotLetters[QRandomGenerator::global()->bounded(static_cast<quint32>(lotLetters.size()))];
        });
        path = folderOf(target) / name;
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, rights);
        if (file >= 0 || errno != EEXIST)
            return file;
    }
    return -1;
}

bool writeAll(int file, const QByteArray &content)
{
    qsizetype written = 0;
    while (written < content.size()) {
        const ssize_t count =
            write(file, content.constData() + written, static_cast<size_t>(content.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

/// A rename survives a power cut only once the folder that holds the name is on disk.
void syncFolder(const fs::path &path)
{
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

/// What to make of what the path names now: 0 to replace it or to make it, otherwise why not.
int reasonToLeave(const fs::path &target, bool &exists, mode_t &rights)
{
    struct stat status = {};
    exists = stat(target.c_str(), &status) == 0;
    if (!exists)
        return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return EPERM;
    rights = status.st_mode & ALLPERMS;
    // The folder's rights alone decide about renaming, but a file that is protected is meant to stay.
    return access(target.c_str(), W_OK) == 0 ? 0 : errno;
}

/// Some file systems of networks refuse to set even what is so already.
bool setRights(int file, mode_t rights)
{
    struct stat status = {};
    return (fstat(file, &status) == 0 && (status.st_mode & ALLPERMS) == rights) || fchmod(file, rights) == 0;
}

/// 0, or why it failed.
int replace(const fs::path &target, const QByteArray &content)
{
    bool exists = false;
    mode_t rights = DEFFILEMODE;
    if (const int reason = reasonToLeave(target, exists, rights); reason != 0)
        return reason;
    fs::path temporary;
    const int file = openTemporary(target, rights, temporary);
    if (file < 0)
        return errno;
    // A new file gets what the user's mask leaves, one that was there keeps its own.
    bool isReady = (!exists || setRights(file, rights)) && writeAll(file, content) && fsync(file) == 0;
    int reason = isReady ? 0 : errno;
    if (close(file) != 0 && isReady) {
        isReady = false;
        reason = errno;
    }
    if (isReady && rename(temporary.c_str(), target.c_str()) != 0)
        reason = errno;
    if (reason != 0)
        unlink(temporary.c_str());
    else
        syncFolder(folderOf(target));
    return reason;
}

} // namespace

bool replaceFile(const QString &filePath, const QByteArray &content, QString *reason)
{
    const fs::path target = pathFrom(filePath);
    std::error_code error;
    fs::create_directories(folderOf(target), error);
    if (!error)
        error.assign(replace(target, content), std::generic_category());
    if (error && reason != nullptr)
        *reason = QString::fromLocal8Bit(error.message());
    return !error;
}

void removeLeftovers(const QString &filePath)
{
    const fs::path target = pathFrom(filePath);
    const std::string prefix = temporaryPrefix(target);
    std::error_code error;
    for (fs::directory_iterator entry(folderOf(target), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        if (isTemporaryName(entry->path().filename().native(), prefix) &&
            entry->symlink_status(ignored).type() == fs::file_type::regular)
            fs::remove(entry->path(), ignored);
    }
}

} // namespace keyvora
