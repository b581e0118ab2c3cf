// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/RoundedRectangle.h"

#include "ui/NinePatch.h"
#include "ui/PictureCache.h"
#include "ui/PixelNode.h"
#include "ui/RoundedPicture.h"

#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

NinePatch patch(const RoundedLook &look, const QSize &size)
{
    const auto border = static_cast<int>(std::ceil(std::max(look.radius, look.borderWidth)));
    const QSize least(NinePatch::lengthFor(size.width(), border),
                      NinePatch::lengthFor(size.height(), border));
    const QString name = u"rounded/%1/%2/"_s.arg(least.width()).arg(least.height()) + look.name();
    return {PictureCache::picture(name, [&] { return roundedPicture(look, least); }), border};
}

/// In pieces that are drawn at once.
void fill(const QRect &place, const QColor &color, QPainter &painter)
{
    constexpr int lines = 64;
    for (int top = place.top(); top <= place.bottom(); top += lines)
        painter.fillRect(QRect(place.left(), top, place.width(), std::min(lines, place.bottom() + 1 - top)),
                         color);
}

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;

    void set(const QRectF &newPlace, const RoundedLook &look)
    {
        if (newPlace == place() && look == m_look)
            return;
        setPlace(newPlace);
        m_look = look;
        m_drawnSize = {};
        markDirty(DirtyMaterial);
    }

private:
    void draw(const QRect &place, qreal scale, QPainter &painter) override
    {
        if (place.size() != m_drawnSize || scale != m_drawnScale) {
            m_patch = patch(m_look.inPixels(place.size(), scale), place.size());
            m_drawnSize = place.size();
            m_drawnScale = scale;
        }
        m_patch.drawFrame(place, painter);
        if (m_look.color.alpha() > 0)
            fill(m_patch.middleOf(place), m_look.color, painter);
    }

    RoundedLook m_look;
    NinePatch m_patch;
    QSize m_drawnSize; ///< that the patch is for, as the scale
    qreal m_drawnScale = 0;
};

} // namespace

RoundedRectangle::RoundedRectangle(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &RoundedRectangle::changed, this, &QQuickItem::update);
}

QSGNode *RoundedRectangle::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    const bool hasBorder = m_borderWidth > 0 && m_borderColor.alpha() > 0;
    const bool isDrawn = !size().isEmpty() && (m_color.alpha() > 0 || hasBorder);
    auto *node = PixelNode::keptOrNew<Node>(old, isDrawn, window());
    if (node != nullptr)
        node->set(boundingRect(), {m_color, m_radius, hasBorder ? m_borderWidth : 0, m_borderColor});
    return node;
}

} // namespace keyvora
