// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace keyvora {

/// The program's one key combination that works in every application: Control+Alt+Space, whatever the locks
/// are.
class HotKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Registers the combination. Where another program has it, or the desktop offers nothing of the kind,
    /// it stays off, silently.
    virtual void registerHotKey() = 0;

    /// Gives the combination back; does nothing when it is not registered.
    virtual void unregisterHotKey() = 0;

    /// Whether the combination is ours. Where the desktop answers later, false until then.
    [[nodiscard]] virtual bool isRegistered() const = 0;

signals:
    /// The user pressed it. The token is what the desktop wants to see before it lets a window come to the
    /// front.
    void pressed(const QString &activationToken);
};

} // namespace keyvora
