// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include <chrono>
#include <functional>
#include <optional>

namespace keyvora {

/// Tells the click that has just closed the panel. Where a click on the icon takes the focus away from the
/// panel, the panel is closed by the time the desktop tells of the click, which must not open it again.
class PanelReclick
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    explicit PanelReclick(Clock clock);

    /// The panel closed because it lost the focus, while the pointer was there.
    void panelLostFocus(QPoint pointer);

    /// Whether a click on the icon, with the pointer there, is what the panel lost the focus to: that was a
    /// moment ago, and the pointer has hardly moved since. True once for each loss.
    [[nodiscard]] bool takesLostFocus(QPoint pointer);

private:
    struct Loss
    {
        std::chrono::steady_clock::time_point time;
        QPoint pointer;
    };

    Clock m_clock;
    std::optional<Loss> m_loss;
};

} // namespace keyvora
