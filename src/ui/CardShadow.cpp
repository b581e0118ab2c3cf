// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CardShadow.h"

#include "ui/NinePatch.h"
#include "ui/PictureCache.h"
#include "ui/PixelNode.h"

#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// How much of each pixel is covered, from 0 to 1.
class CoverageMap
{
public:
    explicit CoverageMap(const QSize &size)
        : m_width(size.width())
        , m_height(size.height())
        , m_values(static_cast<size_t>(m_width) * static_cast<size_t>(m_height))
    {
    }

    [[nodiscard]] float &at(int x, int y)
    {
        return m_values[static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x)];
    }

    /// Spreads every value evenly over the square of this radius around it.
    void boxBlur(int radius)
    {
        std::vector<float> line;
        for (int y = 0; y < m_height; ++y)
            blurLine(m_width, radius, line, [this, y](int x) -> float & { return at(x, y); });
        for (int x = 0; x < m_width; ++x)
            blurLine(m_height, radius, line, [this, x](int y) -> float & { return at(x, y); });
    }

private:
    template <typename Place>
    static void blurLine(int length, int radius, std::vector<float> &line, Place place)
    {
        line.resize(static_cast<size_t>(length));
        for (int i = 0; i < length; ++i)
            line[static_cast<size_t>(i)] = place(i);
        const float weight = 1.0F / static_cast<float>(2 * radius + 1);
        float sum = std::accumulate(line.begin(), line.begin() + std::min(radius, length), 0.0F);
        for (int i = 0; i < length; ++i) {
            if (i + radius < length)
                sum += line[static_cast<size_t>(i) + static_cast<size_t>(radius)];
            if (i > radius)
                sum -= line[static_cast<size_t>(i) - static_cast<size_t>(radius) - 1];
            place(i) = std::max(0.0F, sum * weight);
        }
    }

    int m_width;
    int m_height;
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
QImage picture(const Shadow &shadow, const QSize &size)
{
    constexpr int blurPasses = 3; // three boxes come close to a Gaussian
    QImage shape(size, QImage::Format_Grayscale8);
    shape.fill(0);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        const QRectF whole(QPointF(), size);
        painter.drawRoundedRect(whole.adjusted(shadow.blur, shadow.blur, -shadow.blur, -shadow.blur),
                                shadow.cornerRadius, shadow.cornerRadius);
    }

    CoverageMap coverage(size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            coverage.at(x, y) = static_cast<float>(shape.constScanLine(y)[x]) / 255.0F;
    }
    for (int pass = 0; pass < blurPasses; ++pass)
        coverage.boxBlur(std::max(1, static_cast<int>(shadow.blur) / blurPasses));

    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
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
        const QSize size(NinePatch::lengthFor(place.width(), border),
                         NinePatch::lengthFor(place.height(), border));
        const QString name = u"shadow/%1/%2/%3/%4/%5"_s.arg(size.width())
                                 .arg(size.height())
                                 .arg(shadow.cornerRadius)
                                 .arg(shadow.blur)
                                 .arg(shadow.percent);
        const NinePatch patch{PictureCache::picture(name, [&] { return picture(shadow, size); }), border};
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
    auto *node = PixelNode::keptOrNew<Node>(old, !size().isEmpty(), window());
    if (node != nullptr)
        node->set(boundingRect(), {m_cornerRadius, m_blur, m_offset, m_percent});
    return node;
}

} // namespace keyvora
