// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/ImageProviders.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QImage transparentImage(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// "red/green/blue/opacity", each from 0 to 1.
QColor colorFromParts(const QString &parts)
{
    const auto part = [&](int index) {
        return std::clamp(parts.section(u'/', index, index).toFloat(), 0.0F, 1.0F);
    };
    return QColor::fromRgbF(part(0), part(1), part(2), part(3));
}

QSize sizeOr(const QSize &requested, int fallback)
{
    return requested.width() > 0 && requested.height() > 0 ? requested : QSize(fallback, fallback);
}

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

constexpr size_t levels = 256;

/// How opaque a glow is in a distance from its middle. Falls like a cosine, so that no edge shows where it
/// ends. The window waits for the two glows behind it, a hundred thousands of pixels each, so this is a
/// table.
class GlowFall
{
public:
    /// Of this many parts of a level of opacity.
    static constexpr quint32 one = 1U << 16U;

    /// The opacity in the middle is from 0 to 1.
    explicit GlowFall(float opacity)
    {
        for (size_t step = 0; step < m_parts.size(); ++step) {
            const double distance = std::sqrt(static_cast<double>(step) / steps);
            m_parts[step] =
                static_cast<quint32>((levels - 1) * one * opacity * (1 + std::cos(M_PI * distance)) / 2);
        }
    }

    /// The distance is given by its square; 1 is where the glow ends.
    [[nodiscard]] quint32 at(float squaredDistance) const
    {
        return m_parts[static_cast<size_t>(std::min(squaredDistance, 1.0F) * steps)];
    }

private:
    static constexpr int steps = 4096;

    std::array<quint32, steps + 1> m_parts{};
};

/// A colour at each level of opacity.
std::array<QRgb, levels> glowColors(const QColor &color)
{
    std::array<QRgb, levels> colors{};
    for (size_t level = 0; level < levels; ++level)
        colors[level] =
            qPremultiply(qRgba(color.red(), color.green(), color.blue(), static_cast<int>(level)));
    return colors;
}

} // namespace

SymbolImageProvider::SymbolImageProvider()
    : QQuickImageProvider(Image)
{
}

QImage SymbolImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    constexpr int defaultSize = 24;
    const QString name = id.section(u'/', 0, 0);
    QImage image = transparentImage(sizeOr(requestedSize, defaultSize));
    QSvgRenderer renderer(u":/keyvora/symbols/"_s + name + u".svg"_s);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colorFromParts(id.section(u'/', 1)));
    *size = image.size();
    return image;
}

GlowImageProvider::GlowImageProvider()
    : QQuickImageProvider(Image)
{
}

QImage GlowImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    constexpr int defaultSize = 560;
    QImage image = transparentImage(sizeOr(requestedSize, defaultSize));
    const QColor color = colorFromParts(id);
    const QPointF center = QRectF(image.rect()).center();
    const auto radius = static_cast<float>(center.x());
    const GlowFall fall(color.alphaF());
    const std::array<QRgb, levels> colors = glowColors(color);
    std::minstd_rand noise;
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const float down = (static_cast<float>(y) - static_cast<float>(center.y())) / radius;
        for (int x = 0; x < image.width(); ++x) {
            const float across = (static_cast<float>(x) - radius) / radius;
            // The noise breaks up the steps between the few levels that so faint a colour has.
            const quint32 level = fall.at(across * across + down * down) + noise() % GlowFall::one;
            line[x] = colors[level / GlowFall::one];
        }
    }
    *size = image.size();
    return image;
}

ShadowImageProvider::ShadowImageProvider()
    : QQuickImageProvider(Image)
{
}

QImage ShadowImageProvider::requestImage(const QString &id, QSize *size, const QSize & /*requestedSize*/)
{
    constexpr int maximumRadius = 64;
    constexpr int blurPasses = 3; // three boxes come close to a Gaussian
    const int corner = std::clamp(id.section(u'/', 0, 0).toInt(), 0, maximumRadius);
    const int blur = std::clamp(id.section(u'/', 1, 1).toInt(), 1, maximumRadius);
    const int percent = std::clamp(id.section(u'/', 2, 2).toInt(), 0, 100);

    const int border = 2 * blur + corner;
    const int side = 2 * border + 2;
    QImage shape(side, side, QImage::Format_Grayscale8);
    shape.fill(0);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(QRectF(blur, blur, side - 2 * blur, side - 2 * blur), corner, corner);
    }

    CoverageMap coverage(side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            coverage.at(x, y) = static_cast<float>(shape.constScanLine(y)[x]) / 255.0F;
    }
    for (int pass = 0; pass < blurPasses; ++pass)
        coverage.boxBlur(std::max(1, blur / blurPasses));

    QImage image = transparentImage({side, side});
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const float alpha = coverage.at(x, y) * static_cast<float>(percent) * 2.55F;
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(alpha)));
        }
    }
    *size = image.size();
    return image;
}

} // namespace keyvora
