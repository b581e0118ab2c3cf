// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KeyboardLayout.h"

#include <QHash>

namespace keyvora {

/// A keyboard whose keys the test labels, by scan code. The rest of it is unknown.
class FakeKeyboardLayout : public KeyboardLayout
{
public:
    [[nodiscard]] std::optional<Key> key(quint32 scanCode, quint32 /*symbol*/,
                                         quint32 /*state*/) const override
    {
        const auto found = m_keys.constFind(scanCode);
        return found == m_keys.constEnd() ? std::nullopt : std::optional(*found);
    }

    void setKey(quint32 scanCode, const Key &key) { m_keys.insert(scanCode, key); }

private:
    QHash<quint32, Key> m_keys;
};

} // namespace keyvora
