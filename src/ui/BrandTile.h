// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickItem>

namespace keyvora {

/// The program's own sign. Drawn by the software renderer alone.
class BrandTile : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(qreal size READ side WRITE setSide NOTIFY sideChanged) ///< of a side, in units
    QML_ELEMENT

public:
    explicit BrandTile(QQuickItem *parent = nullptr);

    [[nodiscard]] qreal side() const { return implicitWidth(); }
    void setSide(qreal side);

signals:
    void sideChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
};

} // namespace keyvora
