// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PdfFile.h"

#include <QCryptographicHash>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype tableEntryLength = 20;
const QByteArray streamStart = ">>\nstream\n";

/// The number that follows a word, searched from a position; -1 when there is none.
int numberBehind(const QByteArray &bytes, const QByteArray &word, qsizetype from)
{
    const qsizetype found = bytes.indexOf(word, from);
    if (found < 0)
        return -1;
    const QByteArray rest = bytes.mid(found + word.size(), tableEntryLength).trimmed();
    qsizetype digits = 0;
    while (digits < rest.size() && rest.at(digits) >= '0' && rest.at(digits) <= '9')
        ++digits;
    bool isNumber = false;
    const int number = rest.left(digits).toInt(&isNumber);
    return isNumber ? number : -1;
}

/// The offsets of all objects by their numbers; empty when the table cannot be read.
QMap<int, qsizetype> readTable(const QByteArray &bytes, qsizetype table)
{
    const QByteArray start = "xref\n0 ";
    const int count = numberBehind(bytes, start, table);
    const qsizetype firstEntry = bytes.indexOf('\n', table + start.size()) + 1;
    if (table < 0 || bytes.mid(table, start.size()) != start || count <= 0 ||
        firstEntry + count * tableEntryLength > bytes.size())
        return {};
    QMap<int, qsizetype> offsets;
    for (int number = 1; number < count; ++number) {
        const QByteArray entry = bytes.mid(firstEntry + number * tableEntryLength, tableEntryLength);
        const qsizetype offset = entry.left(10).toLongLong();
        // A number that was given out and never used stands in the table all the same.
        const QByteArray objectStart = QByteArray::number(number) + " 0 obj\n";
        if (bytes.mid(offset, objectStart.size()) == objectStart)
            offsets.insert(number, offset);
    }
    return offsets;
}

/// The six letters before the name of a font that holds only some of its glyphs; the toolkit makes them from
/// a number and leaves them out in places.
QString fontTag(const QString &name)
{
    constexpr qsizetype length = 6;
    QString tag;
    for (const char byte : QCryptographicHash::hash(name.toLatin1(), QCryptographicHash::Md5).left(length))
        tag += QChar(u'A' + static_cast<uchar>(byte) % 26);
    return tag;
}

QString withFontTags(const QString &head)
{
    static const QRegularExpression fontName(u"/(FontName|BaseFont) /(?:[A-Z]{6}\\+)?(\\S+)"_s);
    QString result = head;
    for (const auto &match : fontName.globalMatch(head)) {
        const QString name = match.captured(2);
        result.replace(match.captured(), u'/' + match.captured(1) + u" /"_s + fontTag(name) + u'+' + name);
    }
    return result;
}

/// The object with its own names of fonts and with other numbers of objects, which the call gives for the old
/// ones. Its stream stays as it is.
QByteArray rewritten(const QByteArray &object, const std::function<int(int)> &renumber)
{
    static const QRegularExpression reference(u"\\b(\\d+) 0 R\\b"_s);
    const qsizetype stream = object.indexOf(streamStart);
    const QString head = QString::fromLatin1(stream < 0 ? object : object.left(stream));
    QString result;
    qsizetype copied = 0;
    for (const auto &match : reference.globalMatch(head)) {
        result += QStringView(head).sliced(copied, match.capturedStart() - copied);
        result += QString::number(renumber(match.captured(1).toInt())) + u" 0 R"_s;
        copied = match.capturedEnd();
    }
    result += QStringView(head).sliced(copied);
    return withFontTags(result).toLatin1() + (stream < 0 ? QByteArray() : object.mid(stream));
}

QByteArray textString(const QString &text)
{
    QByteArray units = "\xFE\xFF";
    for (const QChar unit : text) {
        units.append(static_cast<char>(unit.unicode() >> 8U));
        units.append(static_cast<char>(unit.unicode() & 0xFFU));
    }
    return '<' + units.toHex().toUpper() + '>';
}

QByteArray infoObject(const PdfInfo &info)
{
    const QByteArray product = textString(u"Keyvora"_s);
    const QByteArray date = info.created.toUTC().toString(u"yyyyMMddHHmmss"_s).toLatin1();
    return "\n<<\n/Title " + textString(info.title) + "\n/Author " + textString(info.author) + "\n/Creator " +
           product + "\n/Producer " + product + "\n/CreationDate (D:" + date + "Z)\n/ModDate (D:" + date +
           "Z)\n>>\n";
}

} // namespace

std::optional<PdfFile> PdfFile::parse(const QByteArray &bytes)
{
    const qsizetype lastLines = bytes.lastIndexOf("startxref");
    const qsizetype table = lastLines < 0 ? -1 : numberBehind(bytes, "startxref", lastLines);
    const qsizetype trailer = table < 0 ? -1 : bytes.indexOf("trailer", table);
    const QMap<int, qsizetype> offsets = trailer < 0 ? QMap<int, qsizetype>() : readTable(bytes, table);
    if (offsets.isEmpty())
        return std::nullopt;

    PdfFile file;
    file.m_root = numberBehind(bytes, "/Root ", trailer);
    file.m_header = bytes.left(bytes.indexOf('\n') + 1);
    QList<qsizetype> ends = offsets.values();
    ends.append(table);
    std::ranges::sort(ends);
    for (const auto &[number, offset] : offsets.asKeyValueRange()) {
        const qsizetype end = *std::ranges::upper_bound(ends, offset);
        const QByteArray object = bytes.mid(offset, end - offset);
        const qsizetype from = object.indexOf("obj") + 3;
        const qsizetype to = object.lastIndexOf("endobj");
        if (to < from)
            return std::nullopt;
        file.m_objects.insert(number, object.mid(from, to - from));
    }
    if (!file.m_objects.contains(file.m_root))
        return std::nullopt;
    return file;
}

QByteArray PdfFile::withInfo(const PdfInfo &info) const
{
    // The objects in the order in which a reader meets them, which depends on the page alone.
    QList<int> order{m_root};
    QHash<int, int> newNumbers{{m_root, 1}};
    const auto renumber = [&](int number) {
        if (!newNumbers.contains(number)) {
            order.append(number);
            newNumbers.insert(number, static_cast<int>(order.size()));
        }
        return newNumbers.value(number);
    };

    QByteArray result = m_header + "%\xE2\xE3\xCF\xD3\n";
    QList<qsizetype> offsets;
    const auto write = [&](const QByteArray &object) {
        offsets.append(result.size());
        result += QByteArray::number(offsets.size()) + " 0 obj" + object + "endobj\n";
    };
    for (qsizetype i = 0; i < order.size(); ++i)
        write(rewritten(m_objects.value(order.at(i), "\nnull\n"), renumber));
    write(infoObject(info));

    const QByteArray id = QCryptographicHash::hash(result, QCryptographicHash::Md5).toHex().toUpper();
    const qsizetype table = result.size();
    const QByteArray count = QByteArray::number(offsets.size() + 1);
    result += "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const qsizetype offset : offsets)
        result += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    result += "trailer\n<<\n/Size " + count + "\n/Root 1 0 R\n/Info " + QByteArray::number(offsets.size()) +
              " 0 R\n/ID [<" + id + "> <" + id + ">]\n>>\nstartxref\n" + QByteArray::number(table) +
              "\n%%EOF\n";
    return result;
}

} // namespace keyvora
