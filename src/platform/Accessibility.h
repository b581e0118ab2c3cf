// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MenuTree.h"

#include <QFuture>
#include <QObject>
#include <QPoint>
#include <QString>

#include <optional>

namespace keyvora {

/// What other applications tell about their menus. Nothing blocks: every answer is a future, which is
/// finished within a bounded time, however the other application behaves. Main thread only; answers may
/// be finished from another thread.
class Accessibility : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the desktop lets the program read other applications, asked afresh at each call.
    [[nodiscard]] virtual QFuture<bool> isTrusted() = 0;

    /// Asks the user, through whoever listens to `trustRequested`, to allow it. The answer shows in a later
    /// `isTrusted`.
    void requestTrust() { emit trustRequested(); }

    /// Does what the user allowed: from now on, and in later sessions, `isTrusted` is true. The future tells
    /// whether the desktop obeyed.
    [[nodiscard]] virtual QFuture<bool> grantTrust() = 0;

    /// The menu bar of the application with this process, read without opening any menu. Nothing when it has
    /// none or does not answer; an application that stops answering gives what was read until then.
    [[nodiscard]] virtual QFuture<std::optional<MenuTree>> menuBar(qint32 pid) = 0;

    /// The title of the menu item of that application that is on the screen at this point (in screen pixels);
    /// empty when there is none.
    [[nodiscard]] virtual QFuture<QString> menuItemTitleAt(qint32 pid, QPoint position) = 0;

signals:
    void trustRequested();
};

} // namespace keyvora
