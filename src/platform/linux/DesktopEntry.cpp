// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopEntry.h"

#include <QFile>
#include <QFileInfo>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QString unescaped(const QString &value)
{
    QString result;
    result.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            result.append(value[i]);
            continue;
        }
        switch (value[++i].unicode()) {
        case u's':
            result.append(u' ');
            break;
        case u'n':
            result.append(u'\n');
            break;
        case u't':
            result.append(u'\t');
            break;
        case u'r':
            result.append(u'\r');
            break;
        case u'\\':
            result.append(u'\\');
            break;
        default: // an escape of a list or of Exec, resolved by whoever splits that
            result.append(u'\\').append(value[i]);
        }
    }
    return result;
}

/// The first argument of an Exec value.
QString firstArgument(QStringView exec)
{
    QString argument;
    bool isQuoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar character = exec[i];
        if (character == u'"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && character == u'\\' && i + 1 < exec.size()) {
            argument.append(exec[++i]);
        } else if (exec.sliced(i).startsWith("%%"_L1)) {
            argument.append(exec[i++]);
        } else if (!isQuoted && character.isSpace()) {
            if (!argument.isEmpty())
                break;
        } else {
            argument.append(character);
        }
    }
    return argument;
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(const QByteArray &text)
{
    DesktopEntry entry;
    bool isInGroup = false;
    bool hasGroup = false;
    for (const QByteArray &rawLine : text.split('\n')) {
        const QString line = QString::fromUtf8(rawLine).trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[')) {
            // Groups of actions follow, with names of their own.
            isInGroup = line == "[Desktop Entry]"_L1;
            hasGroup = hasGroup || isInGroup;
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (isInGroup && equals > 0)
            entry.m_values.insert(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
    }
    if (!hasGroup)
        return std::nullopt;
    return entry;
}

std::optional<DesktopEntry> DesktopEntry::read(const QString &filePath)
{
    // Anything but a regular file could keep a reader waiting for ever.
    const QFileInfo info(filePath);
    if (!info.isFile() || info.size() > maximumFileBytes)
        return std::nullopt;
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parse(file.read(maximumFileBytes));
}

QString DesktopEntry::value(const QString &key) const
{
    return unescaped(m_values.value(key));
}

QString DesktopEntry::localizedValue(const QString &key, const QStringList &languages) const
{
    for (const QString &language : languages) {
        const QString locale = QString(language).replace(u'-', u'_');
        for (const QString &name : {locale, locale.section(u'_', 0, 0)}) {
            const auto translated = m_values.constFind(key + u'[' + name + u']');
            if (translated != m_values.constEnd())
                return unescaped(*translated);
        }
        if (locale.section(u'_', 0, 0) == "en"_L1)
            break; // values without a language are English
    }
    return value(key);
}

bool DesktopEntry::flag(const QString &key, bool fallback) const
{
    const auto stored = m_values.constFind(key);
    return stored == m_values.constEnd() ? fallback : *stored == "true"_L1;
}

QString DesktopEntry::executableName() const
{
    return firstArgument(value(u"Exec"_s)).section(u'/', -1);
}

QString DesktopEntry::escaped(const QString &text)
{
    QString value = text;
    value.replace(u'\\', u"\\\\"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s)
        .replace(u'\t', u"\\t"_s);
    // Blanks at the ends of a value do not count.
    return value.replace(u' ', u"\\s"_s);
}

QString DesktopEntry::quotedForExec(const QString &filePath)
{
    QString quoted = u"\""_s;
    for (const QChar character : filePath) {
        // A backslash is escaped once for the argument and once for the value that holds it.
        if (character == u'\\')
            quoted.append(u"\\\\\\\\"_s);
        else if (character == u'"' || character == u'`' || character == u'$')
            quoted.append(u"\\\\"_s).append(character);
        else if (character == u'%')
            quoted.append(u"%%"_s);
        else if (character == u'\n')
            quoted.append(u"\\n"_s);
        else if (character == u'\r')
            quoted.append(u"\\r"_s);
        else
            quoted.append(character);
    }
    return quoted + u'"';
}

} // namespace keyvora
