// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MenuTree.h"

#include <QByteArray>

#include <optional>

namespace keyvora {

class BusPipeline;

/// Where a GTK application offers its menu bar as a model on the session bus. GTK 4 tells assistive programs
/// nothing about menus that were not opened yet; the model has everything.
struct GtkMenuBar
{
    QByteArray busName;
    QByteArray objectPath;
};

/// The menu bar that a window of this process announces; nothing when none does. Talks to the X server over a
/// connection of its own and waits for it: for worker threads.
[[nodiscard]] std::optional<GtkMenuBar> findGtkMenuBar(qint32 pid);

/// Reads a menu bar over the bus of the session; nothing when it does not answer.
/// https://wiki.gnome.org/Projects/GLib/GApplication/DBusAPI
[[nodiscard]] std::optional<MenuTree> readGtkMenuBar(BusPipeline &session, const GtkMenuBar &bar);

/// A label without its mnemonic mark; a doubled underscore stands for one.
[[nodiscard]] QString withoutMnemonic(const QString &label);

} // namespace keyvora
