// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LoginItem.h"

#include <QList>

#include <utility>

namespace keyvora {

/// A login item that obeys, refuses or pretends, as the test says.
class FakeLoginItem : public LoginItem
{
public:
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }

    [[nodiscard]] std::optional<PlatformError> setEnabled(bool enabled) override
    {
        m_requests.append(enabled);
        if (m_error)
            return m_error;
        if (m_obeys)
            m_enabled = enabled;
        return std::nullopt;
    }

    /// What was asked for, oldest first.
    [[nodiscard]] const QList<bool> &requests() const { return m_requests; }

    /// The state that the desktop reports, as if changed behind the program's back.
    void setReported(bool enabled) { m_enabled = enabled; }
    /// From now on every request fails with this error, or succeeds when there is none.
    void setError(std::optional<PlatformError> error) { m_error = std::move(error); }
    /// Whether requests that succeed change the reported state.
    void setObeys(bool obeys) { m_obeys = obeys; }

private:
    bool m_enabled = false;
    bool m_obeys = true;
    std::optional<PlatformError> m_error;
    QList<bool> m_requests;
};

} // namespace keyvora
