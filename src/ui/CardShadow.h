// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickItem>

namespace keyvora {

/// A soft shadow around an opaque rounded rectangle of the item's size, which has to cover the middle;
/// lengths in units of the item. Drawn by the software renderer alone, which has no shadows of its own.
class CardShadow : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(qreal cornerRadius MEMBER m_cornerRadius NOTIFY changed REQUIRED)
    Q_PROPERTY(qreal blur MEMBER m_blur NOTIFY changed REQUIRED)     ///< how far it reaches
    Q_PROPERTY(qreal offset MEMBER m_offset NOTIFY changed REQUIRED) ///< downwards
    Q_PROPERTY(int percent MEMBER m_percent NOTIFY changed REQUIRED) ///< opacity
    QML_ELEMENT

public:
    explicit CardShadow(QQuickItem *parent = nullptr);

signals:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    qreal m_cornerRadius = 0;
    qreal m_blur = 1;
    qreal m_offset = 0;
    int m_percent = 0;
};

} // namespace keyvora
