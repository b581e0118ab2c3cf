// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintService.h"

#include "cheatsheet/PdfFile.h"
#include "cheatsheet/PrintableCheatSheetView.h"
#include "cheatsheet/StandardSheet.h"

#include <QBuffer>
#include <QMarginsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pointsPerInch = 72;

/// Empty when the page cannot be drawn.
QByteArray draw(const PrintableCheatSheetView &view)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QPdfWriter writer(&buffer);
    // The first version whose pages may count in larger units.
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_1_6);
    writer.setResolution(pointsPerInch);
    writer.setPageSize(QPageSize(QSizeF(view.size()), QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!buffer.open(QIODevice::WriteOnly) || !painter.begin(&writer))
        return {};
    view.paint(painter);
    return painter.end() ? bytes : QByteArray();
}

} // namespace

PrintService::PrintService(DocumentClock clock)
    : m_clock(std::move(clock))
{
}

std::optional<QByteArray> PrintService::makePDF(CheatSheetSize size, const QList<Shortcut> &shortcuts) const
{
    const PrintableCheatSheetView view(shortcuts, size);
    if (view.size().isEmpty())
        return std::nullopt;
    const auto file = PdfFile::parse(draw(view));
    if (!file)
        return std::nullopt;
    return file->withInfo({.title = standardSheetTitle(), .author = u"Keyvora"_s, .created = m_clock()});
}

} // namespace keyvora
