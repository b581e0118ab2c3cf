// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelReclick.h"

#include <utility>

namespace keyvora {

namespace {

// From the press, or the tenth of a second later that the toolkit notices it, to what the host makes of the
// release. Nobody who has used another window meanwhile is as fast.
constexpr std::chrono::milliseconds longestClick(500);
constexpr int farthestMove = 24;

} // namespace

PanelReclick::PanelReclick(Clock clock)
    : m_clock(std::move(clock))
{
}

void PanelReclick::panelLostFocus(QPoint pointer)
{
    m_loss = Loss{.time = m_clock(), .pointer = pointer};
}

bool PanelReclick::takesLostFocus(QPoint pointer)
{
    const auto loss = std::exchange(m_loss, std::nullopt);
    return loss && m_clock() - loss->time <= longestClick &&
           (pointer - loss->pointer).manhattanLength() <= farthestMove;
}

} // namespace keyvora
