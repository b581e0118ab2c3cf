// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/Typesetter.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <optional>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// No reader sees it, and sums of advances may miss a width by that much.
constexpr qreal tolerance = 0.01;

/// The positions behind which a text may be cut, or a line may end; the last is the text's length.
QList<qsizetype> boundaries(const QString &text, QTextBoundaryFinder::BoundaryType type)
{
    QTextBoundaryFinder finder(type, text);
    QList<qsizetype> positions;
    while (finder.toNextBoundary() >= 0)
        positions.append(finder.position());
    return positions;
}

bool isWrittenFromRight(const QString &text)
{
    return std::ranges::any_of(text.toUcs4(), [](uint character) {
        const QChar::Direction direction = QChar::direction(character);
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
    });
}

/// Whether a character means the same glyph wherever it stands.
bool standsAlone(char32_t character)
{
    if (QChar::isMark(character) || QChar::category(character) == QChar::Other_Format)
        return false;
    switch (QChar::script(character)) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return true;
    default:
        return false;
    }
}

struct ShapedText
{
    QList<QGlyphRun> runs;
    qreal width = 0;
};

/// At the design size, from the beginning of the baseline.
ShapedText shape(const QString &text, const QFont &font)
{
    constexpr qreal endless = 1'000'000;
    QTextOption option;
    option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (!line.isValid())
        return {};
    line.setLineWidth(endless);
    layout.endLayout();

    ShapedText shaped{.runs = {}, .width = line.naturalTextWidth()};
    const QPointF baseline(0, line.y() + line.ascent());
    for (QGlyphRun run : layout.glyphRuns()) {
        QList<QPointF> positions = run.positions();
        for (QPointF &position : positions)
            position -= baseline;
        run.setPositions(positions);
        if (!positions.isEmpty())
            shaped.runs.append(run);
    }
    // They come in the order of a hash table, which differs from one start of the program to the next.
    std::ranges::stable_sort(shaped.runs, {},
                             [](const QGlyphRun &run) { return run.positions().constFirst().x(); });
    return shaped;
}

/// Brings a run from the design size to the line's, and puts it where the line ends so far.
void append(SheetLine &line, const QGlyphRun &run)
{
    const qreal scale = line.style.size / SheetFonts::DesignSize;
    QList<QPointF> positions = run.positions();
    for (QPointF &position : positions)
        position = position * scale + QPointF(line.width, 0);
    QRawFont font = run.rawFont();
    font.setPixelSize(line.style.size);
    // A copy would keep the bounds that it had at the design size.
    QGlyphRun scaled;
    scaled.setRawFont(font);
    scaled.setGlyphIndexes(run.glyphIndexes());
    scaled.setPositions(positions);
    line.runs.append(scaled);
}

} // namespace

SheetLine Typesetter::line(const QString &text, const TextStyle &style)
{
    const std::pair key(text, style);
    auto known = m_lines.constFind(key);
    if (known == m_lines.cend())
        known = m_lines.insert(key, makeLine(text, style));
    return *known;
}

SheetLine Typesetter::fitted(const QString &text, const TextStyle &style, qreal width, qreal minimumScale)
{
    SheetLine natural = line(text, style);
    if (natural.width <= width + tolerance)
        return natural;
    TextStyle smaller = style;
    smaller.size *= std::clamp(width / natural.width, minimumScale, 1.0);
    const SheetLine shrunk = line(text, smaller);
    return shrunk.width <= width + tolerance ? shrunk : elided(text, smaller, width);
}

QList<SheetLine> Typesetter::wrapped(const QString &text, const TextStyle &style, qreal width)
{
    QList<SheetLine> lines;
    QString rest = text;
    while (line(rest, style).width > width + tolerance) {
        const qsizetype length = fittingLength(rest, style, width);
        lines.append(line(rest.left(length).trimmed(), style));
        rest = rest.mid(length).trimmed();
    }
    if (!rest.isEmpty() || lines.isEmpty())
        lines.append(line(rest, style));
    return lines;
}

qreal Typesetter::capHeight(const TextStyle &style)
{
    return m_fonts.rawFont(0, style.weight).capHeight() * style.size / SheetFonts::DesignSize;
}

SheetText Typesetter::centred(const SheetLine &line, qreal x, qreal middle, qreal opacity)
{
    return {{x, middle + capHeight(line.style) / 2}, line, opacity};
}

SheetLine Typesetter::makeLine(const QString &text, const TextStyle &style)
{
    SheetLine line{.text = text, .style = style, .width = 0, .runs = {}};
    const QString composed = text.normalized(QString::NormalizationForm_C);
    if (isWrittenFromRight(composed)) {
        appendShaped(line, composed);
        return line;
    }
    QString segment;
    qsizetype segmentFamily = 0;
    const auto finishSegment = [&] {
        if (segmentFamily >= 0)
            appendPlain(line, segment, segmentFamily);
        else
            appendShaped(line, segment);
        segment.clear();
    };
    qsizetype start = 0;
    for (const qsizetype end : boundaries(composed, QTextBoundaryFinder::Grapheme)) {
        const QStringView grapheme = QStringView(composed).sliced(start, end - start);
        const qsizetype family = plainFamily(grapheme, style.weight);
        if (family != segmentFamily && !segment.isEmpty())
            finishSegment();
        segmentFamily = family;
        segment += grapheme;
        start = end;
    }
    if (!segment.isEmpty())
        finishSegment();
    return line;
}

/// The family that has this as a character that stands alone, or -1.
qsizetype Typesetter::plainFamily(QStringView grapheme, QFont::Weight weight)
{
    const QList<uint> characters = grapheme.toUcs4();
    if (characters.size() != 1 || !standsAlone(characters.first()))
        return -1;
    for (qsizetype family = 0; family < SheetFonts::families().size(); ++family) {
        if (m_fonts.rawFont(family, weight).supportsCharacter(characters.first()))
            return family;
    }
    return -1;
}

void Typesetter::appendPlain(SheetLine &line, const QString &text, qsizetype family)
{
    const QRawFont font = m_fonts.rawFont(family, line.style.weight);
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    const QList<QPointF> advances = font.advancesForGlyphIndexes(glyphs, QRawFont::UseDesignMetrics);

    // Shaping knows the kerning; it counts where it has left the glyph as it is.
    const ShapedText shaped = shape(text, SheetFonts::font(family, line.style.weight));
    const bool isComparable =
        shaped.runs.size() == 1 && shaped.runs.first().glyphIndexes().size() == glyphs.size();
    const QList<quint32> shapedGlyphs = isComparable ? shaped.runs.first().glyphIndexes() : QList<quint32>();
    QList<QPointF> shapedPositions = isComparable ? shaped.runs.first().positions() : QList<QPointF>();
    shapedPositions.append({shaped.width, 0});

    QList<QPointF> positions;
    positions.reserve(glyphs.size());
    qreal x = 0;
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        positions.append({x, 0});
        const bool isKept = isComparable && shapedGlyphs.at(i) == glyphs.at(i);
        x += isKept ? shapedPositions.at(i + 1).x() - shapedPositions.at(i).x() : advances.at(i).x();
    }

    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    append(line, run);
    line.width += x * line.style.size / SheetFonts::DesignSize;
}

void Typesetter::appendShaped(SheetLine &line, const QString &text)
{
    const ShapedText shaped = shape(text, SheetFonts::font(0, line.style.weight));
    for (const QGlyphRun &run : shaped.runs)
        append(line, run);
    line.width += shaped.width * line.style.size / SheetFonts::DesignSize;
}

SheetLine Typesetter::elided(const QString &text, const TextStyle &style, qreal width)
{
    const QString ellipsis = u"…"_s;
    const QList<qsizetype> ends = boundaries(text, QTextBoundaryFinder::Grapheme);
    const auto cut = [&](qsizetype end) {
        return line(text.left(end).trimmed() + ellipsis, style);
    };
    const auto tooLong = std::ranges::partition_point(
        ends, [&](qsizetype end) { return cut(end).width <= width + tolerance; });
    return tooLong == ends.begin() ? line(ellipsis, style) : cut(*std::prev(tooLong));
}

/// How much of a text that is too wide goes into its first line; never nothing.
qsizetype Typesetter::fittingLength(const QString &text, const TextStyle &style, qreal width)
{
    const auto longest = [&](QTextBoundaryFinder::BoundaryType type) -> std::optional<qsizetype> {
        const QList<qsizetype> ends = boundaries(text, type);
        const auto tooLong = std::ranges::partition_point(ends, [&](qsizetype end) {
            return line(text.left(end).trimmed(), style).width <= width + tolerance;
        });
        return tooLong == ends.begin() ? std::nullopt : std::optional(*std::prev(tooLong));
    };
    if (const auto words = longest(QTextBoundaryFinder::Line))
        return *words;
    return longest(QTextBoundaryFinder::Grapheme)
        .value_or(boundaries(text, QTextBoundaryFinder::Grapheme).constFirst());
}

} // namespace keyvora
