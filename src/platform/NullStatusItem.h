// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/StatusItem.h"

namespace keyvora {

/// The icon on a desktop that has no status area.
class NullStatusItem : public StatusItem
{
    Q_OBJECT

public:
    using StatusItem::StatusItem;

    [[nodiscard]] Host host() const override { return Host::None; }
};

} // namespace keyvora
