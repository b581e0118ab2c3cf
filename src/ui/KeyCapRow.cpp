// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/KeyCapRow.h"

#include "model/KeyCapLabel.h"
#include "model/KeySteps.h"
#include "ui/PictureCache.h"
#include "ui/PixelNode.h"
#include "ui/RoundedPicture.h"
#include "ui/SymbolPicture.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Measures
{
    qreal height;
    qreal leastWidth;
    qreal padding; ///< left and right of the label
    qreal radius;
    qreal spacing;
    qreal fontSize; ///< in units of which 96 are an inch where fonts are not enlarged
    qreal stepSize;
};

constexpr Measures ordinary{30, 28, 8, 7, 6, 13, 11};
constexpr Measures compact{21, 20, 5, 5, 4, 10, 9};

constexpr const Measures &measuresOf(bool isCompact)
{
    return isCompact ? compact : ordinary;
}

QFont fontOf(const Measures &measures, int weight)
{
    constexpr qreal pointsPerUnit = 0.75;
    QFont font = QGuiApplication::font();
    font.setPointSizeF(measures.fontSize * pointsPerUnit);
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

QFont scaled(QFont font, qreal scale)
{
    font.setPointSizeF(font.pointSizeF() * scale);
    return font;
}

/// What all caps of a row have in common.
struct Look
{
    bool isCompact = false;
    RoundedLook cap;
    QFont font;
    QColor ink;
    QColor stepInk;
};

QImage capPicture(const QString &label, const QSize &size, const Look &look, qreal scale)
{
    QImage image = roundedPicture(look.cap.inPixels(size, scale), size);
    QPainter painter(&image);
    const QFont font = scaled(look.font, scale);
    const QFontMetricsF metrics(font, &image);
    painter.setFont(font);
    painter.setPen(look.ink);
    const qreal left = std::round((size.width() - metrics.horizontalAdvance(label)) / 2);
    const qreal top = std::round((size.height() - metrics.ascent() - metrics.descent()) / 2);
    painter.drawText(QPointF(left, std::round(top + metrics.ascent())), label);
    return image;
}

QImage keptCapPicture(const QString &label, const QSize &size, const Look &look, qreal scale)
{
    const QString name = u"cap/%1/%2/%3/%4/%5/"_s.arg(size.width())
                             .arg(scale)
                             .arg(look.font.weight())
                             .arg(look.ink.rgba())
                             .arg(look.isCompact) +
                         look.cap.name() + u'/' + label;
    return PictureCache::picture(name, [&] { return capPicture(label, size, look, scale); });
}

class Node : public PixelNode
{
public:
    using PixelNode::PixelNode;

    void set(const QRectF &newPlace, const Look &look, const QList<KeyCapRow::Cap> &caps)
    {
        setPlace(newPlace);
        m_look = look;
        m_caps = caps;
        m_pictures.clear();
        markDirty(DirtyMaterial);
    }

private:
    struct Picture
    {
        QPoint offset;
        QImage image;
    };

    void draw(const QRect &place, qreal scale, QPainter &painter) override
    {
        if (m_pictures.empty() || scale != m_drawnScale) {
            m_pictures.clear();
            for (const KeyCapRow::Cap &cap : std::as_const(m_caps))
                m_pictures.push_back(pictureOf(cap, scale));
            m_drawnScale = scale;
        }
        for (const Picture &picture : m_pictures)
            painter.drawImage(place.topLeft() + picture.offset, picture.image);
    }

    [[nodiscard]] Picture pictureOf(const KeyCapRow::Cap &cap, qreal scale) const
    {
        const Measures &measures = measuresOf(m_look.isCompact);
        const auto pixels = [scale](qreal length) {
            return static_cast<int>(std::round(length * scale));
        };
        const int left = pixels(cap.x);
        if (!cap.label.isEmpty()) {
            const QSize size(pixels(cap.width), pixels(measures.height));
            return {{left, 0}, keptCapPicture(cap.label, size, m_look, scale)};
        }
        const int side = pixels(measures.stepSize);
        return {{left, (pixels(measures.height) - side) / 2},
                symbolPicture(u"arrow_forward"_s, side, m_look.stepInk)};
    }

    Look m_look;
    QList<KeyCapRow::Cap> m_caps;
    std::vector<Picture> m_pictures; ///< one for each cap, or none yet
    qreal m_drawnScale = 0;
};

} // namespace

KeyCapRow::KeyCapRow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &KeyCapRow::changed, this, [this] {
        if (isComponentComplete())
            layOut();
    });
}

void KeyCapRow::componentComplete()
{
    QQuickItem::componentComplete();
    layOut();
}

QStringList KeyCapRow::labels() const
{
    QStringList labels;
    for (const Cap &cap : m_caps)
        labels.append(cap.label);
    return labels;
}

void KeyCapRow::layOut()
{
    m_hasSmallCaps = m_isCompact;
    qreal width = placeCaps();
    if (!m_hasSmallCaps && width > m_availableWidth) {
        m_hasSmallCaps = true;
        width = placeCaps();
    }
    setImplicitSize(width, m_caps.isEmpty() ? 0 : measuresOf(m_hasSmallCaps).height);
    update();
    emit laidOut();
}

qreal KeyCapRow::placeCaps()
{
    const Measures &measures = measuresOf(m_hasSmallCaps);
    const QFontMetricsF metrics(fontOf(measures, m_weight));
    m_caps.clear();
    qreal x = 0;
    for (int index = 0; index < m_keys.size(); ++index) {
        Cap cap{{}, x, measures.stepSize};
        if (!isStepSeparator(m_keys, index)) {
            cap.label = keyCapLabel(m_keys[index]);
            const qreal width = std::ceil(metrics.horizontalAdvance(cap.label)) + 2 * measures.padding;
            cap.width = std::max(measures.leastWidth, width);
        }
        x += cap.width + measures.spacing;
        m_caps.append(cap);
    }
    return std::max(0.0, x - measures.spacing);
}

QSGNode *KeyCapRow::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = PixelNode::keptOrNew<Node>(old, !m_caps.isEmpty(), window());
    if (node == nullptr)
        return nullptr;
    const Measures &measures = measuresOf(m_hasSmallCaps);
    const Look look{m_hasSmallCaps,
                    {m_fill, measures.radius, m_outlineWidth, m_outline},
                    fontOf(measures, m_weight),
                    m_ink,
                    m_stepInk};
    node->set(QRectF(0, 0, implicitWidth(), implicitHeight()), look, m_caps);
    return node;
}

} // namespace keyvora
