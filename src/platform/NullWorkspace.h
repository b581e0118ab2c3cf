// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Workspace.h"

namespace keyvora {

/// The workspace of a desktop that does not let anybody see its applications.
class NullWorkspace : public Workspace
{
    Q_OBJECT

public:
    using Workspace::Workspace;

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        return std::nullopt;
    }
    [[nodiscard]] QFuture<QList<RunningApplication>> runningApplications() override
    {
        return QtFuture::makeReadyFuture(QList<RunningApplication>());
    }
};

} // namespace keyvora
