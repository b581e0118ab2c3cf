// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPointF>
#include <QQuickItem>

namespace keyvora {

/// A soft disc of a colour that fades out towards its edge, as much of it as the item covers; lengths in
/// units of the item. Drawn by the software renderer alone.
class Glow : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed REQUIRED) ///< in the middle
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed REQUIRED)
    Q_PROPERTY(QPointF middle MEMBER m_middle NOTIFY changed REQUIRED) ///< in the item, or beyond it
    QML_ELEMENT

public:
    explicit Glow(QQuickItem *parent = nullptr);

signals:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    QColor m_color = Qt::transparent;
    qreal m_radius = 1;
    QPointF m_middle;
};

} // namespace keyvora
