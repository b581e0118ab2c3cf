// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fuzz/Properties.h"
#include "model/Backup.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace keyvora {

namespace {

using namespace Qt::Literals::StringLiterals;

/// Gives one byte at a time, so that whatever is read lies across the ends of pieces.
class Trickle : public QBuffer
{
public:
    explicit Trickle(const QByteArray &bytes)
    {
        setData(bytes);
        open(ReadOnly | Unbuffered);
    }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        return QBuffer::readData(data, qMin(maximum, 1LL));
    }
};

/// Whether these are the same to the last bit. Shortcuts compare more leniently.
bool areSame(const std::optional<Backup> &left, const std::optional<Backup> &right)
{
    return left.has_value() == right.has_value() && (!left || encodeBackup(*left) == encodeBackup(*right));
}

QString withoutMark(QString text)
{
    while (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    return text;
}

QStringList withoutMarks(QStringList texts)
{
    for (QString &text : texts)
        text = withoutMark(text);
    return texts;
}

/// Without the byte order marks that begin texts: the toolkit's documents lose some.
Backup withoutMarks(Backup backup)
{
    for (Shortcut &shortcut : backup.customShortcuts) {
        shortcut.id = withoutMark(shortcut.id);
        shortcut.title = withoutMark(shortcut.title);
        shortcut.keys = withoutMarks(shortcut.keys);
        shortcut.apps = withoutMarks(shortcut.apps);
        shortcut.detail = withoutMark(shortcut.detail);
    }
    backup.favorites = withoutMarks(backup.favorites);
    return backup;
}

/// The same by way of the toolkit's documents.
std::optional<Backup> reference(const QByteArray &json)
{
    const QJsonObject file = QJsonDocument::fromJson(json).object();
    const QJsonValue customShortcuts = file[u"customShortcuts"_s];
    const QJsonValue favorites = file[u"favorites"_s];
    if (!customShortcuts.isArray() || !favorites.isArray())
        return std::nullopt;
    Backup backup;
    for (const QJsonValue value : customShortcuts.toArray()) {
        const auto shortcut = shortcutFromJson(value);
        if (!shortcut)
            return std::nullopt;
        backup.customShortcuts.append(*shortcut);
    }
    for (const QJsonValue value : favorites.toArray()) {
        if (!value.isString())
            return std::nullopt;
        backup.favorites.append(value.toString());
    }
    return backup;
}

} // namespace

void checkBackup(const QByteArray &json)
{
    constexpr qsizetype smallBytes = 4096;
    const auto backup = decodeBackup(json);
    if (json.size() <= smallBytes) {
        Trickle trickle(json);
        require(areSame(decodeBackup(trickle), backup), "pieces make no difference");
        const auto expected = reference(json);
        require(!backup || !expected || areSame(withoutMarks(*backup), withoutMarks(*expected)),
                "it reads what the toolkit reads");
    }
    if (backup) {
        const QByteArray encoded = encodeBackup(*backup);
        require(!encoded.isEmpty(), "what was read can be written");
        require(areSame(decodeBackup(encoded), backup), "what was written is read as it was");
    }
}

} // namespace keyvora
