// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/BrandTile.h"

#include "ui/PixelNode.h"
#include "ui/SymbolPicture.h"

#include <QQuickWindow>

#include <algorithm>

namespace keyvora {

namespace {

constexpr qreal ordinarySide = 32;

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;
    using PixelNode::setPlace;

private:
    void draw(const QRect &place, qreal /*scale*/, QPainter &painter) override
    {
        const int side = std::min(place.width(), place.height());
        if (m_picture.width() != side)
            m_picture = brandPicture(side);
        painter.drawImage(place.topLeft(), m_picture);
    }

    QImage m_picture;
};

} // namespace

BrandTile::BrandTile(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setImplicitSize(ordinarySide, ordinarySide);
}

void BrandTile::setSide(qreal side)
{
    if (side == implicitWidth())
        return;
    setImplicitSize(side, side);
    emit sideChanged();
}

QSGNode *BrandTile::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = PixelNode::keptOrNew<Node>(old, !size().isEmpty(), window());
    if (node != nullptr) {
        node->setPlace(boundingRect());
        node->markDirty(QSGNode::DirtyMaterial);
    }
    return node;
}

} // namespace keyvora
