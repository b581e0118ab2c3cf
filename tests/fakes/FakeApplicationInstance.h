// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ApplicationInstance.h"

#include <QPointer>

namespace keyvora {

/// A start of the program in a session that the test plays.
class FakeApplicationInstance : public ApplicationInstance
{
public:
    /// The one place that the starts of a session compete for.
    struct Session
    {
        bool canTell = true; ///< whether a start finds out about the others
        QPointer<FakeApplicationInstance> first;
    };

    /// The session outlives the instance.
    explicit FakeApplicationInstance(Session &session, QObject *parent = nullptr)
        : ApplicationInstance(parent)
        , m_session(session)
    {
    }

    [[nodiscard]] Claim claim(const QString &activationToken) override
    {
        if (!m_session.canTell || m_session.first.isNull())
            QMetaObject::invokeMethod(this, &ApplicationInstance::caughtUp, Qt::QueuedConnection);
        if (!m_session.canTell)
            return Claim::Alone;
        if (m_session.first.isNull()) {
            m_session.first = this;
            return Claim::First;
        }
        m_session.first->activate(activationToken);
        return Claim::HandedOver;
    }

    /// The desktop shows the program.
    void activate(const QString &activationToken = {}) { emit activated(activationToken); }

    /// The desktop chooses one of the program's actions.
    void chooseAction(const QString &action, const QString &activationToken = {})
    {
        emit actionActivated(action, activationToken);
    }

    /// The session ends around the program.
    void loseSession()
    {
        if (m_session.first == this)
            emit sessionLost();
    }

private:
    Session &m_session;
};

} // namespace keyvora
