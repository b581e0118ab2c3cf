// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/GlowPicture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace keyvora {

namespace {

constexpr size_t levels = 256;

/// How opaque a glow is in a distance from its middle. Falls like a cosine, so that no edge shows where it
/// ends. The window waits for the two glows behind it, a hundred thousand pixels each, so this is a table.
class GlowFall
{
public:
    /// How many parts a level of opacity has.
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
    static constexpr int steps = 1024;

    std::array<quint32, steps + 1> m_parts{};
};

/// Numbers below a level of opacity that look random, one for each of very many pixels.
class Noise
{
public:
    quint32 next()
    {
        // A linear congruential generator with the constants of Numerical Recipes; its upper bits are the
        // better ones.
        m_state = m_state * 1664525U + 1013904223U;
        return m_state >> 16U;
    }

private:
    quint32 m_state = 1;
};
static_assert(GlowFall::one == 1U << 16U);

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

QImage glowPicture(const GlowLook &look, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const auto part = static_cast<float>(1 / look.radius);
    const auto left = static_cast<float>(look.middle.x());
    const auto top = static_cast<float>(look.middle.y());
    const GlowFall fall(static_cast<float>(look.color.alphaF()));
    const std::array<QRgb, levels> colors = glowColors(look.color);
    Noise noise;
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const float down = (static_cast<float>(y) - top) * part;
        for (int x = 0; x < image.width(); ++x) {
            const float across = (static_cast<float>(x) - left) * part;
            // The noise breaks up the steps between the few levels that so faint a colour has.
            const quint32 level = fall.at(across * across + down * down) + noise.next();
            line[x] = colors[level / GlowFall::one];
        }
    }
    return image;
}

} // namespace keyvora
