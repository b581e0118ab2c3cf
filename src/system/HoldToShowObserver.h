// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"
#include "system/Delay.h"

#include <QObject>

#include <chrono>
#include <functional>

namespace keyvora {

class Accessibility;

/// Shows the overlay while the user holds Control and Option, and nothing else, in another application.
/// Main thread only.
class HoldToShowObserver : public QObject
{
public:
    /// What is shown and hidden again.
    struct Overlay
    {
        std::function<void()> show;
        std::function<void()> hide;
        std::function<bool()> isVisible;
    };

    static constexpr KeyModifiers combination = KeyModifier::Control | KeyModifier::Option;
    /// How long the combination is held before the overlay comes.
    static constexpr std::chrono::milliseconds threshold{350};

    /// The input monitor and the accessibility outlive the observer.
    HoldToShowObserver(InputMonitor &input, Accessibility &accessibility, Overlay overlay,
                       Delay delay = preciseDelay());

    /// The overlay is on the screen because of a hold, and not because of a button.
    [[nodiscard]] bool isShowingFromHold() const { return m_isShowingFromHold; }

    /// Starts watching, for good; does nothing when it watches already or is not allowed to.
    void start();

    /// These modifiers are down now.
    void handleFlagsChanged(KeyModifiers modifiers);
    /// Ends the hold that is under way, if any, and hides the overlay if a hold showed it.
    void dismissIfNeeded();
    /// Ends the hold that is under way without showing anything: its keys turned out to mean something else.
    void cancelHold() { ++m_holdToken; }
    /// Somebody hid the overlay.
    void overlayHidden() { m_isShowingFromHold = false; }

private:
    void completeHold(quint64 token);

    InputMonitor &m_input;
    Accessibility &m_accessibility;
    Overlay m_overlay;
    Delay m_delay;
    bool m_isStarted = false;
    bool m_isShowingFromHold = false;
    quint64 m_holdToken = 0; ///< changes with each hold and each end of one
};

} // namespace keyvora
