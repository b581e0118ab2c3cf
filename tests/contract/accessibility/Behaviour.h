// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace keyvora {

enum Role : uint32_t { frame = 23, menu = 33, menuBar = 34, menuItem = 35, popupMenu = 41, application = 75 };

/// States of objects; what belongs to an open menu has both.
constexpr uint32_t isShowing = 1U << 25U;
constexpr uint32_t isVisible = 1U << 30U;

inline const std::string root = "/org/a11y/atspi/accessible/root";
inline const std::string noObject = "/org/a11y/atspi/null";

/// Where an object is on the screen, in pixels.
struct Place
{
    int32_t x = 0;
    int32_t y = 0;
    int32_t width = 0;
    int32_t height = 0;
    uint32_t states = isVisible;
};

/// What an object is said to be.
struct Reference
{
    std::string path;
    /// The connection that it is said to belong to; empty for the application's own.
    std::string owner = {};
};

/// What the objects of an application answer.
struct Behaviour
{
    std::function<uint32_t(const std::string &)> role;
    std::function<std::vector<std::string>(const std::string &)> children;
    std::function<std::string(const std::string &)> name = [](const std::string &) {
        return std::string();
    };
    std::function<std::string(const std::string &)> keyBinding = [](const std::string &) {
        return std::string();
    };
    std::function<Place(const std::string &)> place = [](const std::string &) {
        return Place{};
    };
    /// What an object says is at a point of the screen; absent when it keeps silent.
    std::function<std::optional<Reference>(const std::string &, int32_t, int32_t)> at =
        [](const std::string &, int32_t, int32_t) {
            return Reference{noObject};
        };
    /// What it claims, which need not be the truth.
    std::function<int32_t(const std::string &)> childCount = nullptr;
    std::function<std::string(const std::string &, int32_t)> childAt = nullptr;
    /// Called before each answer; false keeps silent.
    std::function<bool()> answers = [] {
        return true;
    };
    /// Answers names and bindings with values of other types.
    bool mistakesTypes = false;
    std::string toolkit = {};
    /// The objects that it keeps ready to be fetched at once: path, parent and index.
    std::vector<std::tuple<std::string, std::string, int32_t>> cache = {};
    /// Says that its children belong to this connection instead.
    std::string owner = {};
};

struct Object
{
    uint32_t role;
    std::vector<std::string> children;
    std::string name;
    std::string keyBinding;
    Place place = {};
};
using Objects = std::map<std::string, Object>;

/// The place of an entry of an open menu. The first one, at the top of the screen, is entry 0.
[[nodiscard]] Place entryPlace(int index);

/// A window with a menu bar and one open menu with these entries, `/item0` and so on.
[[nodiscard]] Objects withMenu(const std::vector<std::pair<std::string, std::string>> &entries);

/// One with New and Save As.
[[nodiscard]] Objects ordinary();

/// Answers as these objects are. At a point is the first child whose place is there, also where nothing is
/// shown.
[[nodiscard]] Behaviour behaviourOf(Objects objects);

/// How those behave that are strange when their menus are read; every other one is ordinary.
[[nodiscard]] Behaviour treeBehaviour(std::string_view name);

/// How those behave that are strange when they are asked what is at a point; nothing for other names.
[[nodiscard]] std::optional<Behaviour> hitBehaviour(std::string_view name);

} // namespace keyvora
