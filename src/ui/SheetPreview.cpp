// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/SheetPreview.h"

#include "cheatsheet/StickerList.h"
#include "model/Assign.h"
#include "model/Localization.h"

#include <QPainter>

namespace keyvora {

SheetPreview::SheetPreview(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setFillColor(Qt::white);
    setAntialiasing(true);
    connect(&Localization::shared(), &Localization::languageChanged, this, &SheetPreview::layOut);
    layOut();
}

void SheetPreview::setFormat(int format)
{
    if (!assign(m_format, format))
        return;
    layOut();
    emit formatChanged();
}

void SheetPreview::layOut()
{
    const auto position = static_cast<size_t>(m_format);
    if (position >= allCheatSheetSizes.size())
        return;
    m_view.emplace(stickerList(Localization::shared().language()), allCheatSheetSizes.at(position));
    setImplicitSize(m_view->size().width(), m_view->size().height());
    update();
}

void SheetPreview::paint(QPainter *painter)
{
    if (!m_view || m_view->size().isEmpty())
        return;
    const qreal scale = width() / m_view->size().width();
    painter->scale(scale, scale);
    m_view->paint(*painter);
}

} // namespace keyvora
