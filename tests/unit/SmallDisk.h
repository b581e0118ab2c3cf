// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace keyvora {

namespace detail {

inline bool writeInto(const char *path, const std::string &text)
{
    const int file = open(path, O_WRONLY | O_CLOEXEC);
    const bool isWritten =
        file >= 0 && write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    close(file);
    return isWritten;
}

/// Gives this process a view of the file systems that it may change. Not only root may have one.
inline bool leaveTheOthersFileSystems()
{
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    if (unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !writeInto("/proc/self/setgroups", "deny") ||
            !writeInto("/proc/self/uid_map", user + ' ' + user + " 1") ||
            !writeInto("/proc/self/gid_map", group + ' ' + group + " 1"))
            return false;
    }
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace detail

/// Makes checks in a process of its own, for which the folder that they are given is a disk with room for
/// that many bytes. Skips the test where the system lets nobody have one; so it stands at the end of a test.
inline void checkOnSmallDisk(int bytes, const std::function<void(const QString &folder)> &checks)
{
    constexpr int noDisk = 77;
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    std::fflush(nullptr);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const std::string size = "size=" + std::to_string(bytes);
        if (!detail::leaveTheOthersFileSystems() ||
            mount("tmpfs", path.constData(), "tmpfs", MS_NOSUID | MS_NODEV, size.c_str()) != 0)
            _exit(noDisk);
        checks(folder.path());
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    if (WEXITSTATUS(status) == noDisk)
        GTEST_SKIP() << "a small disk can be had neither by root nor in a user namespace";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "see above";
}

/// Fills the disk of this folder with a file up to the last byte. Removing the file makes room again.
inline void fillDisk(const QString &fileName)
{
    constexpr qsizetype pieceBytes = 4096;
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (qsizetype size = pieceBytes; size > 0; size /= 2) {
        while (file.write(QByteArray(size, 'x')) == size) {
        }
    }
}

} // namespace keyvora
