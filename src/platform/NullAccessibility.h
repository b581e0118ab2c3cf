// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Accessibility.h"

namespace keyvora {

/// The accessibility of a desktop that has none: never trusted, and there is nothing to read.
class NullAccessibility : public Accessibility
{
    Q_OBJECT

public:
    using Accessibility::Accessibility;

    [[nodiscard]] QFuture<bool> isTrusted() override { return QtFuture::makeReadyFuture(false); }
    [[nodiscard]] QFuture<bool> grantTrust() override { return QtFuture::makeReadyFuture(false); }
    [[nodiscard]] QFuture<std::optional<MenuTree>> menuBar(qint32 /*pid*/) override
    {
        return QtFuture::makeReadyFuture(std::optional<MenuTree>());
    }
    [[nodiscard]] QFuture<QString> menuItemTitleAt(qint32 /*pid*/, QPoint /*position*/) override
    {
        return QtFuture::makeReadyFuture(QString());
    }
};

} // namespace keyvora
