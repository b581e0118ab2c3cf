// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cheatsheet/PrintableCheatSheetView.h"

#include <QQuickPaintedItem>

#include <optional>

namespace keyvora {

/// A cheat sheet of the essentials on white paper, drawn as it is printed. As large as it is laid out, in
/// points, unless it is given another size; then it is scaled.
class SheetPreview : public QQuickPaintedItem
{
    Q_OBJECT
    /// The format, by its position in the order of display.
    Q_PROPERTY(int format READ format WRITE setFormat NOTIFY formatChanged)
    QML_ELEMENT

public:
    explicit SheetPreview(QQuickItem *parent = nullptr);

    [[nodiscard]] int format() const { return m_format; }
    void setFormat(int format);

    void paint(QPainter *painter) override;

signals:
    void formatChanged();

private:
    void layOut();

    int m_format = 0;
    std::optional<PrintableCheatSheetView> m_view;
};

} // namespace keyvora
