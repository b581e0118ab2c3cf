// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <ctime>

namespace keyvora {

/// Local time is that of another zone for as long as this lives.
class LocalTimeZone
{
public:
    /// The zone as in the environment's TZ: "JST-9" is nine hours ahead of UTC.
    explicit LocalTimeZone(const char *zone)
        : m_wasSet(qEnvironmentVariableIsSet(name))
        , m_before(qgetenv(name))
    {
        qputenv(name, zone);
        tzset();
    }

    ~LocalTimeZone()
    {
        if (m_wasSet)
            qputenv(name, m_before);
        else
            qunsetenv(name);
        tzset();
    }

    Q_DISABLE_COPY_MOVE(LocalTimeZone)

private:
    static constexpr const char *name = "TZ";

    bool m_wasSet;
    QByteArray m_before;
};

} // namespace keyvora
