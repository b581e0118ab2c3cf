// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace keyvora {

class HotKeys;

/// Has the program's hot key registered and answers it.
class HotKeyCenter : public QObject
{
public:
    /// What the hot key does; the token is what a window needs in order to come to the front.
    using Action = std::function<void(const QString &activationToken)>;

    /// The hot keys outlive it.
    HotKeyCenter(HotKeys &hotKeys, Action action);

    /// Registers the hot key, once; where that fails, the program works without.
    void install();

private:
    HotKeys &m_hotKeys;
    Action m_action;
    bool m_isInstalled = false;
};

} // namespace keyvora
