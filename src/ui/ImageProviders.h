// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickImageProvider>

namespace keyvora {

/// "image://symbol/<name>/<red>/<green>/<blue>/<opacity>": a symbol tinted with a colour, at the size that is
/// asked for.
class SymbolImageProvider : public QQuickImageProvider
{
public:
    SymbolImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// "image://glow/<red>/<green>/<blue>/<opacity>": a soft disc of a colour that fades out towards its edge.
class GlowImageProvider : public QQuickImageProvider
{
public:
    GlowImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// "image://shadow/<corner radius>/<blur radius>/<opacity in percent>": the shadow of a rounded rectangle as
/// a picture to be stretched in the middle, its border as wide as twice the blur and the corner together. The
/// software renderer draws no shadows itself.
class ShadowImageProvider : public QQuickImageProvider
{
public:
    ShadowImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace keyvora
