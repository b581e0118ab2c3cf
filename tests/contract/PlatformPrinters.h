// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Appearance.h"
#include "platform/ApplicationInstance.h"
#include "platform/InputMonitor.h"
#include "platform/Workspace.h"
#include "unit/QtPrinters.h"

// How GoogleTest shows the platform's values when an expectation fails.
namespace keyvora {

inline void PrintTo(const RunningApplication &application, std::ostream *stream)
{
    ::PrintTo(application.name, stream);
    *stream << " with process id " << application.pid.value_or(-1);
}

inline void PrintTo(KeyModifiers modifiers, std::ostream *stream)
{
    const struct
    {
        KeyModifier modifier;
        const char *name;
    } names[] = {
        {KeyModifier::Shift, "Shift"},     {KeyModifier::CapsLock, "CapsLock"},
        {KeyModifier::Control, "Control"}, {KeyModifier::Option, "Option"},
        {KeyModifier::Command, "Command"}, {KeyModifier::Other, "Other"},
    };
    *stream << '(';
    for (const auto &[modifier, name] : names) {
        if (modifiers.testFlag(modifier))
            *stream << ' ' << name;
    }
    *stream << " )";
}

inline void PrintTo(const PopupPress &press, std::ostream *stream)
{
    *stream << "at " << press.position.x() << ", " << press.position.y() << " on process " << press.pid;
}

inline void PrintTo(const Appearance::Preferences &preferences, std::ostream *stream)
{
    *stream << (preferences.isDark ? "dark" : "light") << (preferences.highContrast ? ", high contrast" : "")
            << (preferences.reducedMotion ? ", reduced motion" : "");
}

inline void PrintTo(ApplicationInstance::Claim claim, std::ostream *stream)
{
    switch (claim) {
    case ApplicationInstance::Claim::First:
        *stream << "first";
        break;
    case ApplicationInstance::Claim::HandedOver:
        *stream << "handed over";
        break;
    case ApplicationInstance::Claim::Alone:
        *stream << "alone";
        break;
    }
}

} // namespace keyvora
