// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/PdfInfo.h"

#include <QByteArray>
#include <QMap>

#include <optional>

namespace keyvora {

/// A finished document as its objects, to be written again in an order of our own.
///
/// The toolkit's writer names no author, stamps the time at which it runs, and orders and numbers the fonts
/// by chance. Written again, the same page with the same information about it is the same bytes.
class PdfFile
{
public:
    /// Takes apart what QPdfWriter has written: one revision with a plain table of objects. Nothing when it
    /// is anything else.
    static std::optional<PdfFile> parse(const QByteArray &bytes);

    /// The document with this information, in place of what it said about itself before.
    [[nodiscard]] QByteArray withInfo(const PdfInfo &info) const;

private:
    PdfFile() = default;

    QByteArray m_header;
    QMap<int, QByteArray> m_objects; ///< what stands between "obj" and "endobj"
    int m_root = 0;
};

} // namespace keyvora
