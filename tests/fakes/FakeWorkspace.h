// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Workspace.h"

namespace keyvora {

/// A desktop on which the test decides what is in front.
class FakeWorkspace : public Workspace
{
public:
    using Workspace::Workspace;

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override
    {
        ++m_frontmostReads;
        return m_frontmost;
    }

    [[nodiscard]] QFuture<QList<RunningApplication>> runningApplications() override
    {
        return m_running ? QtFuture::makeReadyFuture(*m_running) : QFuture<QList<RunningApplication>>();
    }

    /// What runs; nothing when the desktop gives no answer.
    void setRunning(const std::optional<QList<RunningApplication>> &applications)
    {
        m_running = applications;
    }

    /// How often somebody asked for the application in front.
    [[nodiscard]] int frontmostReads() const { return m_frontmostReads; }

    /// What is in front, without telling anybody.
    void setFrontmost(const std::optional<RunningApplication> &application) { m_frontmost = application; }

    /// Brings an application to the front and tells everybody who listens.
    void activate(const RunningApplication &application)
    {
        m_frontmost = application;
        emit applicationActivated(application);
    }

private:
    std::optional<RunningApplication> m_frontmost;
    std::optional<QList<RunningApplication>> m_running = QList<RunningApplication>();
    mutable int m_frontmostReads = 0;
};

} // namespace keyvora
