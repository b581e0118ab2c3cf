// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LoginItem.h"

#include <QString>
#include <QStringList>

namespace keyvora {

/// The login item as an entry in the user's autostart folder.
/// https://specifications.freedesktop.org/autostart-spec/latest/
class XdgAutostart : public LoginItem
{
public:
    /// `configHome` and `configDirs` are the user's and the system's configuration folders, `executable` is
    /// what the entry starts.
    XdgAutostart(const QString &configHome, const QStringList &configDirs, QString executable);

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] std::optional<PlatformError> setEnabled(bool enabled) override;

private:
    [[nodiscard]] bool isEnabledForEverybody() const;
    [[nodiscard]] std::optional<PlatformError> write(bool hidden) const;

    QString m_entryPath;
    QStringList m_systemEntryPaths;
    QString m_executable;
};

} // namespace keyvora
