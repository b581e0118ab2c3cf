// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/UrlLoader.h"

#include <QObject>
#include <QString>

#include <chrono>

namespace keyvora {

/// Has a helper program fetch each document: started with the address as its only argument, it writes the
/// document to its standard output and exits with 0, or with anything else when it has none. What the network
/// takes in memory, encryption above all, is given back when the helper ends.
class HelperUrlLoader : public UrlLoader
{
public:
    /// `helper` is the program's path. A helper that still runs after `patience` is ended; the default is a
    /// little more than our own helper gives itself.
    explicit HelperUrlLoader(QString helper, std::chrono::milliseconds patience = std::chrono::seconds(75));

    [[nodiscard]] QFuture<std::optional<QByteArray>> load(const QUrl &address) override;

private:
    QString m_helper;
    std::chrono::milliseconds m_patience;
    QObject m_loads; ///< the parent of those under way, which end with it
};

} // namespace keyvora
