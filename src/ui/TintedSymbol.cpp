// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/TintedSymbol.h"

#include "ui/PixelNode.h"
#include "ui/SymbolPicture.h"

#include <QQuickWindow>

#include <algorithm>

namespace keyvora {

namespace {

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;

    void set(const QRectF &newPlace, const QString &name, const QColor &color)
    {
        setPlace(newPlace);
        m_name = name;
        m_color = color;
        m_picture = {};
        markDirty(DirtyMaterial);
    }

private:
    void draw(const QRect &place, qreal /*scale*/, QPainter &painter) override
    {
        const int side = std::min(place.width(), place.height());
        if (m_picture.width() != side)
            m_picture = symbolPicture(m_name, side, m_color);
        painter.drawImage(place.topLeft(), m_picture);
    }

    QString m_name;
    QColor m_color;
    QImage m_picture;
};

} // namespace

TintedSymbol::TintedSymbol(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitSize(m_size, m_size);
    connect(this, &TintedSymbol::changed, this, &TintedSymbol::adopt);
}

void TintedSymbol::adopt()
{
    setImplicitSize(m_size, m_size);
    update();
}

QSGNode *TintedSymbol::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = PixelNode::keptOrNew<Node>(old, !size().isEmpty() && !m_name.isEmpty(), window());
    if (node != nullptr)
        node->set(boundingRect(), m_name, m_color);
    return node;
}

} // namespace keyvora
