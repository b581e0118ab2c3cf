// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/ImageProviders.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
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

QSize sizeOr(const QSize &requested, int fallback)
{
    return requested.width() > 0 && requested.height() > 0 ? requested : QSize(fallback, fallback);
}

/// One pass of a box blur over every line of a coverage map.
void boxBlur(std::vector<float> &values, int width, int height, int radius)
{
    std::vector<float> line(static_cast<size_t>(width));
    const float weight = 1.0F / static_cast<float>(2 * radius + 1);
    for (int y = 0; y < height; ++y) {
        float *row = values.data() + static_cast<ptrdiff_t>(y) * width;
        for (int x = 0; x < width; ++x) {
            float sum = 0;
            for (int i = std::max(0, x - radius); i <= std::min(width - 1, x + radius); ++i)
                sum += row[i];
            line[static_cast<size_t>(x)] = sum * weight;
        }
        std::copy(line.begin(), line.end(), row);
    }
}

void transpose(std::vector<float> &values, int size)
{
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < y; ++x)
            std::swap(values[static_cast<size_t>(y * size + x)], values[static_cast<size_t>(x * size + y)]);
    }
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
    painter.fillRect(image.rect(), QColor(id.section(u'/', 1)));
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
    const QColor color(id);
    const QPointF center = QRectF(image.rect()).center();
    const qreal radius = center.x();
    QRandomGenerator noise(1);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const qreal distance = std::min(1.0, std::hypot(x - center.x(), y - center.y()) / radius);
            // Falls like a cosine, so that no edge shows where it ends; the noise breaks up the steps between the
            // few levels that so faint a colour has.
            const qreal alpha = 255 * color.alphaF() * (1 + std::cos(M_PI * distance)) / 2;
            const int level = static_cast<int>(alpha + noise.generateDouble());
            line[x] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), level));
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

    std::vector<float> coverage(static_cast<size_t>(side) * static_cast<size_t>(side));
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            coverage[static_cast<size_t>(y * side + x)] =
                static_cast<float>(shape.constScanLine(y)[x]) / 255.0F;
    }
    const int radius = std::max(1, blur / blurPasses);
    for (int pass = 0; pass < blurPasses; ++pass) {
        boxBlur(coverage, side, side, radius);
        transpose(coverage, side);
        boxBlur(coverage, side, side, radius);
        transpose(coverage, side);
    }

    QImage image = transparentImage({side, side});
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const float alpha =
                coverage[static_cast<size_t>(y * side + x)] * static_cast<float>(percent) * 2.55F;
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(alpha)));
        }
    }
    *size = image.size();
    return image;
}

} // namespace keyvora
