// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickItem>

namespace keyvora {

/// One of the program's symbols in a colour. Drawn by the software renderer alone.
class TintedSymbol : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed REQUIRED) ///< of its file; empty for none
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY changed) ///< of a side, in units
    QML_ELEMENT

public:
    explicit TintedSymbol(QQuickItem *parent = nullptr);

signals:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void adopt();

    QString m_name;
    QColor m_color = Qt::black;
    qreal m_size = 16;
};

} // namespace keyvora
