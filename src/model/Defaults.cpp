// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Defaults.h"

#include "model/JsonInteger.h"
#include "platform/AtomicFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QJsonValue jsonContainer(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (document.isArray())
        return document.array();
    if (document.isObject())
        return document.object();
    return QJsonValue::Undefined;
}

} // namespace

Defaults::Defaults(QString filePath, const Clock &clock)
    : m_filePath(std::move(filePath))
{
    load(clock);
    removeLeftovers(m_filePath);
}

std::optional<QString> Defaults::text(QLatin1StringView key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isString())
        return std::nullopt;
    return value.toString();
}

std::optional<QStringList> Defaults::textList(QLatin1StringView key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isArray())
        return std::nullopt;
    QStringList texts;
    for (const QJsonValue element : value.toArray()) {
        if (!element.isString())
            return std::nullopt;
        texts.append(element.toString());
    }
    return texts;
}

std::optional<bool> Defaults::boolean(QLatin1StringView key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isBool())
        return std::nullopt;
    return value.toBool();
}

std::optional<qint64> Defaults::integer(QLatin1StringView key) const
{
    return jsonInteger(m_values.value(key));
}

std::optional<QHash<QString, qint64>> Defaults::integerMap(QLatin1StringView key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    QHash<QString, qint64> map;
    map.reserve(object.size());
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto number = jsonInteger(entry.value());
        if (!number)
            return std::nullopt;
        map.insert(entry.key(), *number);
    }
    return map;
}

std::optional<QByteArray> Defaults::data(QLatin1StringView key) const
{
    const QJsonValue value = m_values.value(key);
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    return std::nullopt;
}

void Defaults::setText(QLatin1StringView key, const QString &value)
{
    set(key, value);
}

void Defaults::setTextList(QLatin1StringView key, const QStringList &value)
{
    set(key, QJsonArray::fromStringList(value));
}

void Defaults::setBoolean(QLatin1StringView key, bool value)
{
    set(key, value);
}

void Defaults::setInteger(QLatin1StringView key, qint64 value)
{
    set(key, value);
}

void Defaults::setIntegerMap(QLatin1StringView key, const QHash<QString, qint64> &value)
{
    // The object keeps its keys sorted: in any other order each entry would move those after it.
    QStringList keys = value.keys();
    std::ranges::sort(keys);
    QJsonObject object;
    for (const QString &entry : keys)
        object.insert(entry, value.value(entry));
    set(key, object);
}

void Defaults::setData(QLatin1StringView key, const QByteArray &json)
{
    const QJsonValue value = jsonContainer(json);
    if (!value.isUndefined())
        set(key, value);
}

void Defaults::remove(QLatin1StringView key)
{
    if (!m_values.contains(key))
        return;
    m_values.remove(key);
    write();
}

void Defaults::load(const Clock &clock)
{
    const QFileInfo info(m_filePath);
    if (!info.exists() && !info.isSymLink())
        return;
    if (info.isFile() && info.size() <= maximumFileBytes) {
        QFile file(m_filePath);
        if (file.open(QIODevice::ReadOnly)) {
            // The limit holds for a file that grows while it is read, too.
            const QJsonDocument document = QJsonDocument::fromJson(file.read(maximumFileBytes));
            if (document.isObject()) {
                m_values = document.object();
                m_isWritten = true;
                return;
            }
        }
    }
    m_mayWrite = setAside(clock);
}

bool Defaults::setAside(const Clock &clock) const
{
    constexpr int maximumTries = 100;
    const QString base = m_filePath + u".corrupt-"_s + clock().toString(u"yyyyMMdd'T'HHmmss"_s);
    for (int i = 0; i < maximumTries; ++i) {
        // Renaming through QFile never replaces a file, so nothing set aside earlier is lost.
        if (QFile::rename(m_filePath, i == 0 ? base : base + u'-' + QString::number(i)))
            return true;
    }
    return false;
}

void Defaults::set(QLatin1StringView key, const QJsonValue &value)
{
    if (m_isWritten && m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    write();
}

void Defaults::changeTogether(const std::function<void()> &changes)
{
    m_defersWriting = true;
    changes();
    m_defersWriting = false;
    if (std::exchange(m_hasDeferredWriting, false))
        write();
}

void Defaults::write()
{
    if (m_defersWriting) {
        m_hasDeferredWriting = true;
        return;
    }
    m_isWritten =
        m_mayWrite && replaceFile(m_filePath, QJsonDocument(m_values).toJson(QJsonDocument::Compact));
}

} // namespace keyvora
