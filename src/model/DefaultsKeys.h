// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>

/// The names under which values stand in the defaults store.
namespace keyvora::DefaultsKeys {

inline constexpr QLatin1StringView appLanguage{"appLanguage"};
inline constexpr QLatin1StringView favorites{"favorites"};
inline constexpr QLatin1StringView usageCounts{"usageCounts"};
inline constexpr QLatin1StringView customShortcuts{"customShortcuts"};
inline constexpr QLatin1StringView practiceStats{"practiceStats"};
inline constexpr QLatin1StringView smartSuggestions{"smartSuggestions"};
inline constexpr QLatin1StringView learningMode{"learningMode"};
inline constexpr QLatin1StringView hasLaunchedBefore{"hasLaunchedBefore"};
inline constexpr QLatin1StringView dismissedUpdateVersion{"Keyvora.dismissedUpdateVersion"};
inline constexpr QLatin1StringView learningStreak{"learningStreak"};
inline constexpr QLatin1StringView lastLearnedDay{"lastLearnedDay"};
inline constexpr QLatin1StringView hasSeenOnboarding{"hasSeenOnboarding"};

} // namespace keyvora::DefaultsKeys
