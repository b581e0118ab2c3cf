// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/Backup.h"

#include <QBuffer>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <rapidjson/reader.h>
#include <string>
#include <string_view>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// How many bytes a UTF-16 unit takes in JSON, at most.
qint64 jsonBytes(char16_t unit)
{
    constexpr qint64 escapedControl = 6; // \u001f
    if (unit < 0x20)
        return escapedControl;
    if (unit == u'"' || unit == u'\\')
        return 2;
    if (unit < 0x80)
        return 1;
    return unit < 0x800 ? 2 : 3;
}

/// Unlike QString's own way it keeps what would be a byte order mark in a file, with which a text may begin.
QString decoded(QByteArrayView utf8)
{
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder(utf8);
}

QString wellFormed(QString text)
{
    if (text.isValidUtf16())
        return text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (text.at(i).isSurrogate())
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

QStringList wellFormed(QStringList texts)
{
    for (QString &text : texts)
        text = wellFormed(text);
    return texts;
}

Shortcut wellFormed(const Shortcut &shortcut)
{
    return {
        .id = wellFormed(shortcut.id),
        .title = wellFormed(shortcut.title),
        .keys = wellFormed(shortcut.keys),
        .category = shortcut.category,
        .apps = wellFormed(shortcut.apps),
        .detail = wellFormed(shortcut.detail),
    };
}

/// A device as a stream of the parser, which reads bytes here and puts the texts that it finds back here,
/// each without quotes and escapes. It finds the end of the file in a NUL, which JSON cannot contain.
class JsonSource
{
public:
    using Ch = char;

    explicit JsonSource(QIODevice &device)
        : m_device(device)
    {
        refill();
        skipByteOrderMark();
    }

    /// Whether all was read that the device has, and none of it was wrong.
    [[nodiscard]] bool isWhole() const { return m_at == m_end && !m_isBroken; }

    /// The text that was read last; nothing when it is longer than any that can be kept.
    [[nodiscard]] std::optional<std::string_view> text() const
    {
        if (m_isCut)
            return std::nullopt;
        return std::string_view(m_text).substr(0, m_text.size() - 1);
    }

    // What the parser asks for, by its names.

    [[nodiscard]] char Peek() const { return m_at < m_end ? m_chunk[m_at] : '\0'; }

    char Take()
    {
        const char character = Peek();
        advance();
        if (!m_isInText)
            shortenNumber(character);
        return character;
    }

    [[nodiscard]] size_t Tell() const { return static_cast<size_t>(m_bytesRead) - (m_end - m_at); }

    char *PutBegin()
    {
        m_isInText = true;
        m_isCut = false;
        m_text.clear();
        return m_text.data();
    }

    void Put(char character)
    {
        // Half a surrogate pair that stood there as an escape. The parser itself finds the other half.
        if (!m_text.empty() && m_text.back() == '\xED' && static_cast<unsigned char>(character) >= 0xA0)
            m_isBroken = true;
        if (m_text.size() <= BackupLimits::textBytes) {
            m_text.push_back(character);
        } else {
            m_isCut = true;
            m_text.back() = character;
        }
    }

    void Flush() {}

    /// How many bytes were put, the NUL behind them included.
    size_t PutEnd(char * /*begin*/)
    {
        m_isInText = false;
        return m_text.size();
    }

private:
    /// A part of one is a mistake.
    void skipByteOrderMark()
    {
        bool hasBegun = false;
        for (const char expected : std::string_view("\xEF\xBB\xBF")) {
            if (Peek() != expected) {
                m_isBroken = m_isBroken || hasBegun;
                return;
            }
            advance();
            hasBegun = true;
        }
    }

    void advance()
    {
        if (m_at < m_end && ++m_at == m_end)
            refill();
    }

    void refill()
    {
        const qint64 count = m_device.read(m_chunk.data(), static_cast<qint64>(m_chunk.size()));
        m_at = 0;
        m_end = count > 0 ? static_cast<size_t>(count) : 0;
        m_bytesRead += static_cast<qint64>(m_end);
        if (count < 0 && !m_device.atEnd())
            m_isBroken = true;
        if (m_bytesRead > BackupLimits::fileBytes) {
            m_isBroken = true;
            m_end = 0;
        }
    }

    /// No number is of any use here, but the parser refuses those that are too large for it. Two digits of a
    /// row are as good as all of them to tell whether it is well-formed.
    void shortenNumber(char character)
    {
        m_digits = isDigit(character) ? m_digits + 1 : 0;
        if (m_digits < 2)
            return;
        while (isDigit(Peek()))
            advance();
        m_digits = 0;
    }

    static constexpr size_t chunkBytes = 64UL * 1024;

    QIODevice &m_device;
    std::string m_chunk = std::string(chunkBytes, '\0');
    size_t m_at = 0;
    size_t m_end = 0;
    qint64 m_bytesRead = 0;
    int m_digits = 0;
    std::string m_text;
    bool m_isInText = false;
    bool m_isCut = false;
    bool m_isBroken = false;
};

/// The fields of a shortcut as far as they were found with the right type.
struct ShortcutFields
{
    [[nodiscard]] std::optional<Shortcut> shortcut() const
    {
        if (!id || !title || !keys || !category || !apps || !detail)
            return std::nullopt;
        const auto known = categoryFromRawValue(*category);
        if (!known)
            return std::nullopt;
        return Shortcut{*id, *title, *keys, *known, *apps, *detail};
    }

    std::optional<QString> id;
    std::optional<QString> title;
    std::optional<QStringList> keys;
    std::optional<QString> category;
    std::optional<QStringList> apps;
    std::optional<QString> detail;
};

/// Makes a backup of what the parser finds, one event after another. A list in which something is wrong is
/// dropped, and the file refused at its end: a repetition of the field may still replace it.
class BackupReader : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, BackupReader>
{
public:
    explicit BackupReader(JsonSource &source)
        : m_source(source)
    {
    }

    [[nodiscard]] std::optional<Backup> backup() const
    {
        if (!m_customShortcuts || !m_favorites)
            return std::nullopt;
        return Backup{*m_customShortcuts, *m_favorites};
    }

    // What the parser tells, by its names; false stops it.

    /// A number, a truth value or null.
    bool Default() { return unusable(); }

    bool String(const char * /*text*/, unsigned /*length*/, bool /*copy*/)
    {
        if (m_ignored > 0)
            return true;
        if (m_place == Place::Record && m_text != nullptr)
            return keep(m_text->emplace());
        if (m_place == Place::Texts)
            return !*m_list || keep((*m_list)->emplaceBack());
        return unusable();
    }

    bool Key(const char * /*text*/, unsigned /*length*/, bool /*copy*/)
    {
        if (m_ignored > 0)
            return true;
        m_text = nullptr;
        m_list = nullptr;
        m_isCustomShortcuts = false;
        const std::string_view name = m_source.text().value_or(std::string_view());
        if (m_place == Place::File)
            beginField(name);
        else
            beginRecordField(name);
        if (m_text != nullptr)
            m_text->reset();
        if (m_list != nullptr)
            m_list->reset();
        if (m_isCustomShortcuts)
            m_customShortcuts.reset();
        return true;
    }

    bool StartObject()
    {
        if (++m_nesting > BackupLimits::nesting)
            return false;
        if (m_ignored == 0 && m_place == Place::Outside) {
            m_place = Place::File;
        } else if (m_ignored == 0 && m_place == Place::CustomShortcuts && m_customShortcuts) {
            m_place = Place::Record;
            m_fields = {};
        } else {
            ignore();
        }
        return true;
    }

    bool EndObject(unsigned /*count*/)
    {
        --m_nesting;
        if (m_ignored > 0) {
            --m_ignored;
        } else if (m_place == Place::Record) {
            m_place = Place::CustomShortcuts;
            if (const auto shortcut = m_fields.shortcut())
                m_customShortcuts->append(*shortcut);
            else
                m_customShortcuts.reset();
        } else {
            m_place = Place::Outside;
        }
        return true;
    }

    bool StartArray()
    {
        if (++m_nesting > BackupLimits::nesting)
            return false;
        const bool isField = m_ignored == 0 && (m_place == Place::File || m_place == Place::Record);
        if (isField && m_isCustomShortcuts) {
            m_customShortcuts.emplace();
            m_place = Place::CustomShortcuts;
        } else if (isField && m_list != nullptr) {
            m_list->emplace();
            m_aroundTexts = m_place;
            m_place = Place::Texts;
        } else {
            ignore();
        }
        return true;
    }

    bool EndArray(unsigned /*count*/)
    {
        --m_nesting;
        if (m_ignored > 0)
            --m_ignored;
        else
            m_place = m_place == Place::Texts ? m_aroundTexts : Place::File;
        return true;
    }

private:
    enum class Place : quint8 {
        Outside,
        File,            ///< in the object that the file is
        CustomShortcuts, ///< in the list
        Record,          ///< in one of them
        Texts,           ///< in a list of texts
    };

    void beginField(std::string_view name)
    {
        m_isCustomShortcuts = name == "customShortcuts";
        if (name == "favorites")
            m_list = &m_favorites;
    }

    void beginRecordField(std::string_view name)
    {
        if (name == "id")
            m_text = &m_fields.id;
        else if (name == "title")
            m_text = &m_fields.title;
        else if (name == "keys")
            m_list = &m_fields.keys;
        else if (name == "category")
            m_text = &m_fields.category;
        else if (name == "apps")
            m_list = &m_fields.apps;
        else if (name == "detail")
            m_text = &m_fields.detail;
    }

    /// A value that has no place where it stands. As a field it is as good as missing.
    bool unusable()
    {
        if (m_ignored == 0 && m_place == Place::CustomShortcuts)
            m_customShortcuts.reset();
        if (m_ignored == 0 && m_place == Place::Texts)
            m_list->reset();
        return true;
    }

    /// The object or array that begins, and all in it.
    void ignore()
    {
        unusable();
        ++m_ignored;
    }

    /// Takes the text over; false when it is too much.
    bool keep(QString &text)
    {
        const auto utf8 = m_source.text();
        if (!utf8)
            return false;
        text = decoded(QByteArrayView(utf8->data(), static_cast<qsizetype>(utf8->size())));
        return m_allowance.take(text);
    }

    JsonSource &m_source;
    BackupAllowance m_allowance;
    Place m_place = Place::Outside;
    Place m_aroundTexts = Place::Outside;
    int m_nesting = 0;
    int m_ignored = 0; ///< how many of the objects and arrays around this are ignored
    // Where the value of the current field goes; none when it is unknown.
    std::optional<QString> *m_text = nullptr;
    std::optional<QStringList> *m_list = nullptr;
    bool m_isCustomShortcuts = false;
    ShortcutFields m_fields;
    std::optional<QList<Shortcut>> m_customShortcuts;
    std::optional<QStringList> m_favorites;
};

} // namespace

BackupAllowance BackupAllowance::ofImports()
{
    BackupAllowance allowance;
    allowance.m_textBytes = BackupLimits::textBytes / 2;
    allowance.m_textCount = BackupLimits::textCount / 2;
    return allowance;
}

bool BackupAllowance::take(QStringView text)
{
    ++m_textCount;
    for (const QChar character : text)
        m_textBytes += jsonBytes(character.unicode());
    return m_textCount <= BackupLimits::textCount && m_textBytes <= BackupLimits::textBytes;
}

bool BackupAllowance::take(const QStringList &texts)
{
    return std::ranges::all_of(texts, [this](const QString &text) { return take(QStringView(text)); });
}

bool BackupAllowance::take(const Shortcut &shortcut)
{
    return take(QStringView(shortcut.id)) && take(QStringView(shortcut.title)) && take(shortcut.keys) &&
           take(rawValue(shortcut.category)) && take(shortcut.apps) && take(QStringView(shortcut.detail));
}

bool BackupAllowance::take(const Backup &backup)
{
    return std::ranges::all_of(backup.customShortcuts,
                               [this](const Shortcut &shortcut) { return take(shortcut); }) &&
           take(backup.favorites);
}

QByteArray encodeBackup(const Backup &backup)
{
    if (!BackupAllowance().take(backup))
        return {};
    QJsonArray customShortcuts;
    for (const Shortcut &shortcut : backup.customShortcuts)
        customShortcuts.append(toJson(wellFormed(shortcut)));
    const QJsonObject json{
        {"customShortcuts"_L1, customShortcuts},
        {"favorites"_L1, QJsonArray::fromStringList(wellFormed(backup.favorites))},
    };
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

std::optional<Backup> decodeBackup(const QByteArray &json)
{
    QBuffer buffer;
    buffer.setData(json);
    buffer.open(QIODevice::ReadOnly);
    return decodeBackup(buffer);
}

std::optional<Backup> decodeBackup(QIODevice &device)
{
    JsonSource source(device);
    BackupReader reader(source);
    // "In place" means that texts go back into the source, which can bound them. Whatever is nested does not
    // become a recursion.
    constexpr unsigned flags =
        rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
    rapidjson::Reader parser;
    if (!parser.Parse<flags>(source, reader) || !source.isWhole())
        return std::nullopt;
    return reader.backup();
}

} // namespace keyvora
