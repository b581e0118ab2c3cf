// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstdio>
#include <cstdlib>

namespace keyvora {

// What must hold for any bytes whatever. The program ends where it does not.

/// A key binding of a menu command, a zero byte, and the command's title.
void checkAccelerator(const QByteArray &bytes);
/// A file that is said to be a backup.
void checkBackup(const QByteArray &bytes);
/// The file of the defaults store.
void checkDefaults(const QByteArray &bytes);
/// A desktop entry file; and the name of a program that one is written for.
void checkDesktopEntry(const QByteArray &bytes);
/// Keys that a person wrote.
void checkKeysText(const QByteArray &bytes);
/// What the maker's server answers.
void checkVersionManifest(const QByteArray &bytes);

/// Ends the program where a property does not hold.
inline void require(bool holds, const char *property)
{
    if (holds)
        return;
    std::fprintf(stderr, "not so: %s\n", property);
    std::abort();
}

} // namespace keyvora
