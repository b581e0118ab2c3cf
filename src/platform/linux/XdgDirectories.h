// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace keyvora {

/// Where the user's and the system's files live.
/// https://specifications.freedesktop.org/basedir-spec/latest/
struct XdgDirectories
{
    QString configHome;
    QString stateHome;
    QStringList configDirs; ///< the system's, most important first
    QStringList dataDirs;   ///< the user's own first

    /// Reads the environment; what it does not say, or says with a relative path, takes the standard's
    /// default.
    static XdgDirectories fromEnvironment(const QProcessEnvironment &environment);
};

} // namespace keyvora
