// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace keyvora {

/// The per-user defaults store: one JSON object in a file.
///
/// Every write is on disk when the call returns: the file is replaced as a whole, so that a crash leaves the
/// old or the new one. Values of keys that nobody asks for are kept. A file that cannot be read or parsed is
/// renamed to "<name>.corrupt-<time>" and the store starts empty. Where the file cannot be written the values
/// live in memory alone, without a message.
class Defaults
{
public:
    using Clock = std::function<QDateTime()>;

    /// A store larger than this cannot be ours and is treated as unreadable.
    static constexpr qint64 maximumFileBytes = 64LL * 1024 * 1024;

    /// Loads the store. The clock names files that are set aside.
    explicit Defaults(QString filePath, const Clock &clock = &QDateTime::currentDateTimeUtc);

    // Typed reads: nothing when the key is absent or its value has another type.
    [[nodiscard]] std::optional<QString> text(QLatin1StringView key) const;
    [[nodiscard]] std::optional<QStringList> textList(QLatin1StringView key) const;
    [[nodiscard]] std::optional<bool> boolean(QLatin1StringView key) const;
    [[nodiscard]] std::optional<qint64> integer(QLatin1StringView key) const;
    [[nodiscard]] std::optional<QHash<QString, qint64>> integerMap(QLatin1StringView key) const;
    /// UTF-8 JSON of an array or object.
    [[nodiscard]] std::optional<QByteArray> data(QLatin1StringView key) const;

    void setText(QLatin1StringView key, const QString &value);
    void setTextList(QLatin1StringView key, const QStringList &value);
    void setBoolean(QLatin1StringView key, bool value);
    void setInteger(QLatin1StringView key, qint64 value);
    void setIntegerMap(QLatin1StringView key, const QHash<QString, qint64> &value);
    /// Takes the UTF-8 JSON of an array or object; anything else is not stored.
    void setData(QLatin1StringView key, const QByteArray &json);
    void remove(QLatin1StringView key);

    /// Makes several changes with one write, so that the file holds all of them or none.
    void changeTogether(const std::function<void()> &changes);

private:
    void load(const Clock &clock);
    bool setAside(const Clock &clock) const;
    void set(QLatin1StringView key, const QJsonValue &value);
    void write();

    QString m_filePath;
    QJsonObject m_values;
    bool m_mayWrite = true;   ///< false when a file that we could not read still lies in the way
    bool m_isWritten = false; ///< the file holds exactly these values
    bool m_defersWriting = false;
    bool m_hasDeferredWriting = false;
};

} // namespace keyvora
