// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/SheetElements.h"
#include "cheatsheet/SheetFonts.h"
#include "cheatsheet/SheetLine.h"

#include <utility>

namespace keyvora {

/// Sets texts into lines.
///
/// Every glyph is the very one that its font has for the character, never one chosen by the characters
/// around it: only of those can a reader of the page tell what they mean. Scripts that cannot be written like
/// that are shaped as they have to be.
class Typesetter
{
public:
    /// The text in one line, as wide as it is.
    SheetLine line(const QString &text, const TextStyle &style);

    /// The text in one line of at most this width: set smaller, down to `minimumScale` of its size, then cut
    /// with an ellipsis.
    SheetLine fitted(const QString &text, const TextStyle &style, qreal width, qreal minimumScale = 1);

    /// The text in lines of at most this width, broken between words where that is possible; at least one.
    QList<SheetLine> wrapped(const QString &text, const TextStyle &style, qreal width);

    /// How high a capital letter is, in points.
    qreal capHeight(const TextStyle &style);

    /// The line from `x` on, with its capital letters centred on the height `middle`.
    SheetText centred(const SheetLine &line, qreal x, qreal middle, qreal opacity);

private:
    SheetLine makeLine(const QString &text, const TextStyle &style);
    qsizetype plainFamily(QStringView grapheme, QFont::Weight weight);
    void appendPlain(SheetLine &line, const QString &text, qsizetype family);
    static void appendShaped(SheetLine &line, const QString &text);
    SheetLine elided(const QString &text, const TextStyle &style, qreal width);
    qsizetype fittingLength(const QString &text, const TextStyle &style, qreal width);

    SheetFonts m_fonts;
    QHash<std::pair<QString, TextStyle>, SheetLine> m_lines;
};

} // namespace keyvora
