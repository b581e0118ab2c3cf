// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Appearance.h"

namespace keyvora {

/// A desktop whose look the test chooses.
class FakeAppearance : public Appearance
{
public:
    using Appearance::Appearance;

    [[nodiscard]] Preferences preferences() const override { return m_preferences; }

    void setPreferences(const Preferences &preferences)
    {
        if (m_preferences == preferences)
            return;
        m_preferences = preferences;
        emit preferencesChanged();
    }

private:
    Preferences m_preferences;
};

} // namespace keyvora
