// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/Glow.h"

#include "ui/GlowPicture.h"
#include "ui/PixelNode.h"

#include <QQuickWindow>

namespace keyvora {

namespace {

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;

    void set(const QRectF &newPlace, const GlowLook &look)
    {
        setPlace(newPlace);
        m_look = look;
        m_picture = {};
        markDirty(DirtyMaterial);
    }

private:
    void draw(const QRect &place, qreal scale, QPainter &painter) override
    {
        if (m_picture.size() != place.size())
            m_picture =
                glowPicture({m_look.color, m_look.radius * scale, m_look.middle * scale}, place.size());
        painter.drawImage(place.topLeft(), m_picture);
    }

    GlowLook m_look;
    QImage m_picture;
};

} // namespace

Glow::Glow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &Glow::changed, this, &QQuickItem::update);
}

QSGNode *Glow::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = PixelNode::keptOrNew<Node>(old, !size().isEmpty() && m_radius > 0, window());
    if (node != nullptr)
        node->set(boundingRect(), {m_color, m_radius, m_middle});
    return node;
}

} // namespace keyvora
