// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Compositor.h"

namespace keyvora {

/// A desktop that blends nothing, or does not tell.
class NullCompositor : public Compositor
{
    Q_OBJECT

public:
    using Compositor::Compositor;

    [[nodiscard]] bool isRunning() const override { return false; }
};

} // namespace keyvora
