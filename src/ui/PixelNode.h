// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>
#include <QRectF>
#include <QSGRenderNode>

class QQuickWindow;

namespace keyvora {

/// Draws something of an item in whole pixels of the screen, however many of these make up a unit. For the
/// software renderer alone.
class PixelNode : public QSGRenderNode
{
public:
    explicit PixelNode(QQuickWindow *window);

    /// With room for the whole pixels at the edges of the place.
    [[nodiscard]] QRectF rect() const override { return m_place.adjusted(-1, -1, 1, 1); }
    [[nodiscard]] RenderingFlags flags() const override { return BoundedRectRendering; }
    void render(const RenderState *state) override;

    /// The node that an item goes on with: the one it had, or a new one. Null where the item draws nothing;
    /// the one it had is gone then.
    template <typename Node>
    static Node *keptOrNew(QSGNode *old, bool isDrawn, QQuickWindow *window)
    {
        if (!isDrawn) {
            delete old;
            return nullptr;
        }
        return old != nullptr ? static_cast<Node *>(old) : new Node(window);
    }

protected:
    /// What is drawn lies within this place, in units of the item.
    void setPlace(const QRectF &place);
    [[nodiscard]] const QRectF &place() const { return m_place; }

    /// Draws, in pixels of which `scale` are a unit. The place is at whole pixels.
    virtual void draw(const QRect &place, qreal scale, QPainter &painter) = 0;

private:
    QQuickWindow *m_window;
    QRectF m_place;
};

} // namespace keyvora
