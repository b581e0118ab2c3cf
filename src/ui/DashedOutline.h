// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace keyvora {

/// The dashed outline of a rounded rectangle, which lies inside of the item.
class DashedOutline : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)       ///< of the outer edge
    Q_PROPERTY(qreal lineWidth MEMBER m_lineWidth NOTIFY changed) ///< in pixels, like the radius
    QML_ELEMENT

public:
    explicit DashedOutline(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    QColor m_color = Qt::black;
    qreal m_radius = 0;
    qreal m_lineWidth = 1;
};

} // namespace keyvora
