// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/MenuUseObserver.h"

#include <QStringList>

#include <memory>
#include <utility>

namespace keyvora {

/// An observer that writes down what it is told to do. Its owner may delete it; the log stays with the test.
class FakeMenuUseObserver : public MenuUseObserver
{
public:
    struct Log
    {
        int made = 0;
        int destroyed = 0;
        QStringList calls;         ///< "start" and "stop", oldest first
        MenuActionHandler handler; ///< what the latest observer was given
    };

    /// The log outlives the observer.
    FakeMenuUseObserver(Log &log, MenuActionHandler handler)
        : m_log(log)
    {
        ++m_log.made;
        m_log.handler = std::move(handler);
    }
    ~FakeMenuUseObserver() override { ++m_log.destroyed; }

    void start() override { m_log.calls.append(QStringLiteral("start")); }
    void stop() override { m_log.calls.append(QStringLiteral("stop")); }

    /// What makes observers that write into this log.
    static auto factory(Log &log)
    {
        return [&log](MenuActionHandler handler) -> std::unique_ptr<MenuUseObserver> {
            return std::make_unique<FakeMenuUseObserver>(log, std::move(handler));
        };
    }

private:
    Log &m_log;
};

} // namespace keyvora
