// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace keyvora {

/// The `[Desktop Entry]` group of a desktop entry file.
/// https://specifications.freedesktop.org/desktop-entry-spec/latest/
class DesktopEntry
{
public:
    /// A file larger than this is no desktop entry.
    static constexpr qint64 maximumFileBytes = 1024LL * 1024;

    /// Reads the group; nothing when the text has none.
    static std::optional<DesktopEntry> parse(const QByteArray &text);

    /// Reads a regular file; nothing when it is none, is too large, or holds no such group.
    static std::optional<DesktopEntry> read(const QString &filePath);

    /// The value of a key with its escapes resolved; empty when it is missing.
    [[nodiscard]] QString value(const QString &key) const;

    /// The value of a key for the first of the user's languages ("cs-CZ", …) that it is translated to,
    /// otherwise the one without a language.
    [[nodiscard]] QString localizedValue(const QString &key, const QStringList &languages) const;

    /// Whether a boolean key is "true"; `fallback` when it is missing.
    [[nodiscard]] bool flag(const QString &key, bool fallback) const;

    /// The file name of the program that `Exec` starts; empty when it starts none.
    [[nodiscard]] QString executableName() const;

    /// A text as the value of a key, with what it cannot hold escaped.
    static QString escaped(const QString &text);

    /// A file path as one argument of an `Exec` value.
    static QString quotedForExec(const QString &filePath);

private:
    QHash<QString, QString> m_values; ///< raw, by key with its language in brackets
};

} // namespace keyvora
