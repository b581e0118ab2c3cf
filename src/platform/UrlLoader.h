// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFuture>

#include <optional>

class QUrl;

namespace keyvora {

/// Fetches small documents from the web, each as a whole or not at all. Nothing blocks. Main thread only;
/// answers may be finished from another thread.
class UrlLoader
{
public:
    /// Documents that are larger count as failures.
    static constexpr qsizetype maximumBytes = qsizetype{64} * 1024;

    virtual ~UrlLoader() = default;

    /// One attempt to fetch what is at an address. Nothing, within a bounded time, when it cannot be had or
    /// when the server says anything but that this is the document; without a result when the loader is gone
    /// before.
    [[nodiscard]] virtual QFuture<std::optional<QByteArray>> load(const QUrl &address) = 0;
};

} // namespace keyvora
