// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/KeyvoraView.h"

namespace keyvora {

class Compositor;

/// A small window without a frame that lies on the desktop. Its content has a size of its own, and a property
/// `isRounded` that says whether its corners may be round: where nothing makes windows translucent, what is
/// outside of them would be black.
class FloatingWindow : public KeyvoraView
{
    Q_OBJECT

protected:
    /// The theme and the compositor outlive the window. The flags add to those of a window without a frame
    /// that lies above the others.
    FloatingWindow(QQmlEngine *engine, QObject *theme, const Compositor &compositor, Qt::WindowFlags flags);

    /// Makes the window what it is to be when it appears; it follows its content by itself, but not before
    /// the event loop runs again.
    void fitContent();

private:
    void followCompositor();

    const Compositor &m_compositor;
};

} // namespace keyvora
