// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/UrlLoader.h"

#include <QList>
#include <QPromise>
#include <QUrl>

#include <memory>
#include <utility>

namespace keyvora {

/// A web that answers when the test says so.
class FakeUrlLoader : public UrlLoader
{
public:
    [[nodiscard]] QFuture<std::optional<QByteArray>> load(const QUrl &address) override
    {
        m_addresses.append(address);
        const auto promise = std::make_shared<Promise>();
        promise->start();
        m_waiting.append(promise);
        return promise->future();
    }

    /// Answers everything that waits.
    void answer(const std::optional<QByteArray> &document)
    {
        const bool fits = document && document->size() <= maximumBytes;
        for (const auto &promise : std::exchange(m_waiting, {})) {
            promise->addResult(fits ? document : std::nullopt);
            promise->finish();
        }
    }

    /// What was asked for, oldest first.
    [[nodiscard]] const QList<QUrl> &addresses() const { return m_addresses; }

private:
    using Promise = QPromise<std::optional<QByteArray>>;

    QList<QUrl> m_addresses;
    QList<std::shared_ptr<Promise>> m_waiting;
};

} // namespace keyvora
