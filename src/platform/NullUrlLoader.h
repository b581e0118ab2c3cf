// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/UrlLoader.h"

namespace keyvora {

/// A desktop without a way to the web.
class NullUrlLoader : public UrlLoader
{
public:
    [[nodiscard]] QFuture<std::optional<QByteArray>> load(const QUrl & /*address*/) override
    {
        return QtFuture::makeReadyFuture(std::optional<QByteArray>());
    }
};

} // namespace keyvora
