// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/accessibility/Behaviour.h"

#include <algorithm>
#include <memory>

namespace keyvora {

namespace {

bool contains(const Place &place, int32_t x, int32_t y)
{
    return x >= place.x && x < place.x + place.width && y >= place.y && y < place.y + place.height;
}

} // namespace

Place entryPlace(int index)
{
    return {.x = 0, .y = 20 + 20 * index, .width = 100, .height = 20, .states = isVisible | isShowing};
}

Objects withMenu(const std::vector<std::pair<std::string, std::string>> &entries)
{
    Objects objects{{root, {application, {"/frame"}, "strange", ""}},
                    {"/frame", {frame, {"/bar"}, "window", ""}},
                    {"/bar", {menuBar, {"/menu"}, "", ""}},
                    {"/menu", {menu, {}, "File", "<Alt>f;<Alt>f;"}}};
    for (size_t i = 0; i < entries.size(); ++i) {
        const std::string path = "/item" + std::to_string(i);
        objects["/menu"].children.push_back(path);
        objects[path] = {menuItem, {}, entries[i].first, entries[i].second, entryPlace(static_cast<int>(i))};
    }
    return objects;
}

Objects ordinary()
{
    return withMenu({{"New", "n;<Alt>f:n;<Primary>n"}, {"Save As...", "a;<Alt>f:a;<Primary><Shift>s"}});
}

Behaviour behaviourOf(Objects objects)
{
    const auto known = std::make_shared<Objects>(std::move(objects));
    const auto object = [known](const std::string &path) {
        const auto found = known->find(path);
        return found == known->end() ? Object{} : found->second;
    };
    const auto at = [object](const std::string &path, int32_t x, int32_t y) {
        const std::vector<std::string> children = object(path).children;
        const auto found = std::ranges::find_if(
            children, [&](const std::string &child) { return contains(object(child).place, x, y); });
        return Reference{found == children.end() ? noObject : *found};
    };
    return {.role = [object](const std::string &path) { return object(path).role; },
            .children = [object](const std::string &path) { return object(path).children; },
            .name = [object](const std::string &path) { return object(path).name; },
            .keyBinding = [object](const std::string &path) { return object(path).keyBinding; },
            .place = [object](const std::string &path) { return object(path).place; },
            .at = at};
}

} // namespace keyvora
