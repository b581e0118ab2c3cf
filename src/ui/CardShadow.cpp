// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CardShadow.h"

#include "ui/NinePatch.h"
#include "ui/PictureCache.h"
#include "ui/PixelNode.h"

#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// How much of each pixel of a square is covered, from 0 to 1.
class CoverageMap
{
public:
    explicit CoverageMap(int side)
        : m_side(static_cast<size_t>(side))
        , m_values(m_side * m_side)
    {
    }

    [[nodiscard]] float &at(int x, int y)
    {
        return m_values[static_cast<size_t>(y) * m_side + static_cast<size_t>(x)];
    }

    /// Spreads every value evenly over the square of this radius around it.
    void boxBlur(int radius)
    {
        for (int pass = 0; pass < 2; ++pass) {
            blurLines(radius);
            transpose();
        }
    }

private:
    void blurLines(int radius)
    {
        const int side = static_cast<int>(m_side);
        const float weight = 1.0F / static_cast<float>(2 * radius + 1);
        std::vector<float> line(m_side);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                float sum = 0;
                for (int i = std::max(0, x - radius); i <= std::min(side - 1, x + radius); ++i)
                    sum += at(i, y);
                line[static_cast<size_t>(x)] = sum * weight;
            }
            std::ranges::copy(line, &at(0, y));
        }
    }

    void transpose()
    {
        for (int y = 0; y < static_cast<int>(m_side); ++y) {
            for (int x = 0; x < y; ++x)
                std::swap(at(x, y), at(y, x));
        }
    }

    size_t m_side;
    std::vector<float> m_values;
};

/// Lengths in units of the item, or in whole pixels.
struct Shadow
{
    qreal cornerRadius = 0;
    qreal blur = 0;
    qreal offset = 0;
    int percent = 0;

    friend bool operator==(const Shadow &, const Shadow &) = default;
};

/// The shadow of a rounded rectangle with room for its blur around it.
QImage picture(const Shadow &shadow, int side)
{
    constexpr int blurPasses = 3; // three boxes come close to a Gaussian
    QImage shape(side, side, QImage::Format_Grayscale8);
    shape.fill(0);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(
            QRectF(shadow.blur, shadow.blur, side - 2 * shadow.blur, side - 2 * shadow.blur),
            shadow.cornerRadius, shadow.cornerRadius);
    }

    CoverageMap coverage(side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            coverage.at(x, y) = static_cast<float>(shape.constScanLine(y)[x]) / 255.0F;
    }
    for (int pass = 0; pass < blurPasses; ++pass)
        coverage.boxBlur(std::max(1, static_cast<int>(shadow.blur) / blurPasses));

    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const float alpha = coverage.at(x, y) * static_cast<float>(shadow.percent) * 2.55F;
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(alpha)));
        }
    }
    return image;
}

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;

    void set(const QRectF &casting, const Shadow &shadow)
    {
        const QRectF newPlace = casting.adjusted(-shadow.blur, shadow.offset - shadow.blur, shadow.blur,
                                                 shadow.offset + shadow.blur);
        if (newPlace == place() && shadow == m_shadow)
            return;
        setPlace(newPlace);
        m_shadow = shadow;
        markDirty(DirtyMaterial);
    }

private:
    void draw(const QRect &place, qreal scale, QPainter &painter) override
    {
        Shadow shadow = m_shadow;
        shadow.cornerRadius = std::round(shadow.cornerRadius * scale);
        shadow.blur = std::round(shadow.blur * scale);
        const int border = static_cast<int>(2 * shadow.blur + shadow.cornerRadius);
        const int side = 2 * border + NinePatch::tile;
        // So small a thing would want a picture of its own; nothing on the screens is.
        if (place.width() < side || place.height() < side)
            return;
        const QString name =
            u"shadow/%1/%2/%3"_s.arg(shadow.cornerRadius).arg(shadow.blur).arg(shadow.percent);
        const NinePatch patch{PictureCache::picture(name, [&] { return picture(shadow, side); }), border};
        patch.drawFrame(place, painter);
    }

    Shadow m_shadow;
};

} // namespace

CardShadow::CardShadow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &CardShadow::changed, this, &QQuickItem::update);
}

QSGNode *CardShadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    if (size().isEmpty()) {
        delete old;
        return nullptr;
    }
    Node *node = old != nullptr ? static_cast<Node *>(old) : new Node(window());
    node->set(boundingRect(), {m_cornerRadius, m_blur, m_offset, m_percent});
    return node;
}

} // namespace keyvora
