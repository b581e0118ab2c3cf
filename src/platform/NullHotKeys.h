// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HotKeys.h"

namespace keyvora {

/// The hot keys of a desktop that has none.
class NullHotKeys : public HotKeys
{
    Q_OBJECT

public:
    using HotKeys::HotKeys;

    void registerHotKey() override {}
    void unregisterHotKey() override {}
    [[nodiscard]] bool isRegistered() const override { return false; }
};

} // namespace keyvora
