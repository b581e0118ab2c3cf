// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KeyboardLayout.h"

namespace keyvora {

/// Where the desktop does not tell what is on the keys.
class NullKeyboardLayout : public KeyboardLayout
{
public:
    [[nodiscard]] std::optional<Key> key(quint32 /*scanCode*/, quint32 /*symbol*/,
                                         quint32 /*state*/) const override
    {
        return std::nullopt;
    }
};

} // namespace keyvora
