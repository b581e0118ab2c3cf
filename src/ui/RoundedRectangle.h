// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickItem>

namespace keyvora {

/// A rectangle with round corners and an outline whose edges lie between whole pixels of the screen, however
/// many of these make up a unit: the toolkit's own has gaps and uneven lines where that is no whole number.
/// Drawn by the software renderer alone.
class RoundedRectangle : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)           ///< of the outer edge
    Q_PROPERTY(qreal borderWidth MEMBER m_borderWidth NOTIFY changed) ///< inside of the item
    Q_PROPERTY(QColor borderColor MEMBER m_borderColor NOTIFY changed)
    QML_ELEMENT

public:
    explicit RoundedRectangle(QQuickItem *parent = nullptr);

signals:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    QColor m_color = Qt::white;
    qreal m_radius = 0;
    qreal m_borderWidth = 0;
    QColor m_borderColor = Qt::black;
};

} // namespace keyvora
