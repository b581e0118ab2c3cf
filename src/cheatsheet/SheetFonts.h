// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QHash>
#include <QRawFont>
#include <QStringList>

namespace keyvora {

/// The fonts of printed text. They are asked at one large size without hinting, so that what is measured
/// depends on neither the screen nor the printer.
class SheetFonts
{
public:
    /// Pixels per em at which fonts are asked.
    static constexpr int DesignSize = 1000;

    /// The families, the preferred one first. Between them they have a glyph for every key of the catalog.
    static const QStringList &families();

    /// A family at the design size; what it lacks comes from the others.
    static QFont font(qsizetype family, QFont::Weight weight);

    /// The same as a raw font; the first call for a family and a weight loads it.
    QRawFont rawFont(qsizetype family, QFont::Weight weight);

private:
    QHash<std::pair<qsizetype, int>, QRawFont> m_rawFonts;
};

} // namespace keyvora
