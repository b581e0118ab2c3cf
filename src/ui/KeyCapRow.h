// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QQuickItem>

#include <limits>

namespace keyvora {

/// The keys of a shortcut as caps in a row, and an arrow before each further step; lengths in units of the
/// item. Drawn as one, since a screen has many. By the software renderer alone.
class KeyCapRow : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QStringList keys MEMBER m_keys NOTIFY changed REQUIRED)
    Q_PROPERTY(bool compact MEMBER m_isCompact NOTIFY changed) ///< smaller caps
    /// Wider rows have smaller caps, too.
    Q_PROPERTY(qreal availableWidth MEMBER m_availableWidth NOTIFY changed)
    Q_PROPERTY(bool czech MEMBER m_isCzech NOTIFY changed) ///< the language; some keys have words on them
    Q_PROPERTY(QColor fill MEMBER m_fill NOTIFY changed)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY changed)
    Q_PROPERTY(qreal outlineWidth MEMBER m_outlineWidth NOTIFY changed)
    Q_PROPERTY(QColor ink MEMBER m_ink NOTIFY changed)         ///< of what stands on the caps
    Q_PROPERTY(QColor stepInk MEMBER m_stepInk NOTIFY changed) ///< of the arrows
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)      ///< of the font, from 1 to 1000
    Q_PROPERTY(QStringList labels READ labels NOTIFY laidOut) ///< what stands on the caps; empty for an arrow
    QML_ELEMENT

public:
    /// A cap, or the arrow before a step, and where it is.
    struct Cap
    {
        QString label; ///< empty for an arrow
        qreal x = 0;
        qreal width = 0;
    };

    explicit KeyCapRow(QQuickItem *parent = nullptr);

    [[nodiscard]] QStringList labels() const;

signals:
    void changed();
    void laidOut();

protected:
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;

private:
    void layOut();
    /// Places the caps; returns the row's width.
    qreal placeCaps();

    QStringList m_keys;
    bool m_isCompact = false;
    qreal m_availableWidth = std::numeric_limits<qreal>::infinity();
    bool m_isCzech = false;
    QColor m_fill = Qt::white;
    QColor m_outline = Qt::black;
    qreal m_outlineWidth = 1;
    QColor m_ink = Qt::black;
    QColor m_stepInk = Qt::black;
    int m_weight = QFont::Normal;
    QList<Cap> m_caps;
    bool m_hasSmallCaps = false;
};

} // namespace keyvora
