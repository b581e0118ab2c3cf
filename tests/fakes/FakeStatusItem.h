// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/StatusItem.h"

namespace keyvora {

/// The icon in a status area that the test plays.
class FakeStatusItem : public StatusItem
{
    Q_OBJECT

public:
    using StatusItem::StatusItem;

    [[nodiscard]] Host host() const override { return m_host; }

    void click(QPoint position, const QString &activationToken = {})
    {
        emit activated(position, activationToken);
    }

    void setHost(Host host)
    {
        if (m_host == host)
            return;
        m_host = host;
        emit hostChanged(host);
    }

private:
    Host m_host = Host::Unknown;
};

} // namespace keyvora
