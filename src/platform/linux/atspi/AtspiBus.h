// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

namespace keyvora {

class BusPipeline;

// The accessibility bus and who is on it. For worker threads. Those that take the bus of the session start
// the service if need be. Each function runs the pipeline, but the last, whose call goes with the next run.

/// Whether a bus answers in time.
[[nodiscard]] bool responds(BusPipeline &bus);

/// Where the accessibility bus is; nothing when the desktop has none.
[[nodiscard]] std::optional<QByteArray> accessibilityBusAddress(BusPipeline &session);

/// Whether the desktop asks applications to tell about themselves.
[[nodiscard]] bool isAccessibilityEnabled(BusPipeline &session);

/// Asks the desktop for that, until the session ends. False when it does not obey.
[[nodiscard]] bool enableAccessibility(BusPipeline &session);

/// The names on the accessibility bus of the applications with this process, as a rule one.
[[nodiscard]] QList<QByteArray> busNamesOfProcess(BusPipeline &accessibilityBus, qint32 pid);

/// Makes toolkits prepare their caches, which they do for whoever listens to anything. Ends with the
/// connection.
void wakeCaches(BusPipeline &accessibilityBus);

} // namespace keyvora
