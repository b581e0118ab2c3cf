// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/FloatingWindow.h"

namespace keyvora {

/// A small window in the top right corner of the main screen: above all others, on every workspace, and never
/// with the focus.
class CornerWindow : public FloatingWindow
{
    Q_OBJECT

public:
    /// The theme and the compositor outlive the window.
    CornerWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor);

    /// Shows the window at its place.
    void present();

    /// How much of the corner's height others need: the window goes below that.
    [[nodiscard]] int offset() const { return m_offset; }
    void setOffset(int offset);

private:
    void place();

    int m_offset = 0;
};

} // namespace keyvora
