// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/HotKeyCenter.h"

#include "platform/HotKeys.h"

#include <utility>

namespace keyvora {

HotKeyCenter::HotKeyCenter(HotKeys &hotKeys, Action action)
    : m_hotKeys(hotKeys)
    , m_action(std::move(action))
{
}

void HotKeyCenter::install()
{
    if (m_isInstalled)
        return;
    m_isInstalled = true;
    connect(&m_hotKeys, &HotKeys::pressed, this, [this](const QString &token) { m_action(token); });
    m_hotKeys.registerHotKey();
}

} // namespace keyvora
