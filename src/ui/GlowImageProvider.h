// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQuickImageProvider>

namespace keyvora {

/// "image://glow/<red>/<green>/<blue>/<opacity>": a soft disc of a colour that fades out towards its edge.
class GlowImageProvider : public QQuickImageProvider
{
public:
    GlowImageProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace keyvora
