// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace keyvora {

/// Whether the desktop blends windows, so that a window may have round corners: without that, what is
/// transparent is black. Main thread only.
class Compositor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual bool isRunning() const = 0;

signals:
    void isRunningChanged();
};

} // namespace keyvora
