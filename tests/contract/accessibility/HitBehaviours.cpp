// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/accessibility/Behaviour.h"

namespace keyvora {

namespace {

/// Its menu File is closed, though what was in it still answers; over it lies the open menu Edit, with Undo
/// where New was and nothing below it.
Objects withClosedMenu(uint32_t statesOfWhatIsClosed)
{
    Objects objects = ordinary();
    objects["/item0"].place.states = statesOfWhatIsClosed;
    objects["/item1"].place.states = statesOfWhatIsClosed;
    objects["/bar"].children.push_back("/edit");
    objects["/edit"] = {menu, {"/undo"}, "Edit", ""};
    objects["/undo"] = {menuItem, {}, "Undo", "", entryPlace(0)};
    return objects;
}

Behaviour closed()
{
    return behaviourOf(withClosedMenu(isVisible));
}

Behaviour closedAndHidden()
{
    return behaviourOf(withClosedMenu(isShowing));
}

/// Its menu File names New wherever it is asked, and says that it is shown.
Behaviour answersFromAfar(Place place, const std::string &owner = {})
{
    Objects objects = withClosedMenu(isVisible);
    objects["/item0"].place = place;
    Behaviour behaviour = behaviourOf(objects);
    const auto honest = behaviour.at;
    behaviour.at = [=](const std::string &path, int32_t x, int32_t y) {
        return path == "/menu" ? Reference{"/item0", owner} : honest(path, x, y);
    };
    return behaviour;
}

Behaviour elsewhere()
{
    Place place = entryPlace(0);
    place.x = 500;
    return answersFromAfar(place);
}

Behaviour everywhere()
{
    constexpr int32_t farAway = 2'000'000'000;
    return answersFromAfar(
        {.x = 0, .y = 0, .width = farAway, .height = farAway, .states = isVisible | isShowing});
}

/// Says that New, which it shows at the point, belongs to the bus itself.
Behaviour ofAnother()
{
    return answersFromAfar(entryPlace(0), "org.freedesktop.DBus");
}

/// The third entry of its menu is the title of a submenu, whose one command lies over the first entry.
Objects withSubmenu()
{
    Objects objects = ordinary();
    objects["/menu"].children.push_back("/recent");
    objects["/recent"] = {menu, {"/deeper"}, "Open Recent", "", entryPlace(2)};
    objects["/deeper"] = {menuItem, {}, "Deeper", "", entryPlace(0)};
    return objects;
}

/// The same as Qt has it.
Objects withSubmenuOfQt(uint32_t statesOfSubmenu)
{
    Objects objects = withSubmenu();
    objects["/recent"].role = menuItem;
    objects["/recent"].children = {"/popup"};
    objects["/popup"] = {popupMenu, {"/deeper"}, "", "", entryPlace(0)};
    objects["/popup"].place.states = statesOfSubmenu;
    return objects;
}

Behaviour ofQt(Objects objects)
{
    Behaviour behaviour = behaviourOf(std::move(objects));
    behaviour.toolkit = "Qt";
    return behaviour;
}

Behaviour submenu()
{
    return behaviourOf(withSubmenu());
}

Behaviour submenuOfQt()
{
    return ofQt(withSubmenuOfQt(isVisible | isShowing));
}

/// The submenu is closed, though what was in it says that it is shown.
Behaviour closedSubmenuOfQt()
{
    return ofQt(withSubmenuOfQt(isVisible));
}

constexpr int submenusOfCycle = 20;

/// Each of its submenus has all of them as submenus, and the menu and the bar.
Behaviour submenuCycle()
{
    Objects objects = withSubmenu();
    std::vector<std::string> submenus;
    for (int i = 0; i < submenusOfCycle; ++i)
        submenus.push_back("/sub" + std::to_string(i));
    std::vector<std::string> children = submenus;
    children.insert(children.end(), {"/deeper", "/menu", "/bar"});
    objects["/menu"].children = children;
    for (const std::string &path : submenus)
        objects[path] = {menu, children, "Sub", "", entryPlace(3)};
    return behaviourOf(objects);
}

/// Each of its titles has all submenus, and those have all titles.
Behaviour submenuCycleOfQt()
{
    Objects objects = withSubmenu();
    std::vector<std::string> titles;
    std::vector<std::string> popups;
    for (int i = 0; i < submenusOfCycle; ++i) {
        titles.push_back("/title" + std::to_string(i));
        popups.push_back("/popup" + std::to_string(i));
    }
    std::vector<std::string> entries = titles;
    entries.push_back("/deeper");
    objects["/menu"].children = entries;
    for (const std::string &title : titles)
        objects[title] = {menuItem, popups, "Sub", "", entryPlace(3)};
    for (const std::string &popup : popups)
        objects[popup] = {popupMenu, entries, "", "", entryPlace(0)};
    return ofQt(objects);
}

/// Each of its submenus has another one, all are open, and the menu's first command is in each.
Behaviour endlessSubmenus()
{
    Behaviour behaviour = behaviourOf(ordinary());
    const Behaviour plain = behaviour;
    const auto isSubmenu = [](const std::string &path) {
        return path.starts_with("/sub");
    };
    behaviour.role = [=](const std::string &path) {
        return isSubmenu(path) ? menu : plain.role(path);
    };
    behaviour.children = [=](const std::string &path) {
        std::vector<std::string> children = plain.children(path);
        if (isSubmenu(path))
            children.push_back("/sub" + std::to_string(std::stoi(path.substr(4)) + 1));
        else if (path == "/menu")
            children.push_back("/sub0");
        return children;
    };
    behaviour.place = [=](const std::string &path) {
        return isSubmenu(path) ? entryPlace(2) : plain.place(path);
    };
    behaviour.at = [=](const std::string &path, int32_t x, int32_t y) {
        return plain.at(isSubmenu(path) ? "/menu" : path, x, y);
    };
    return behaviour;
}

/// Its bar has two thousand menus with twenty submenus each; the first menu's first command is at its place.
Behaviour crowdedBar()
{
    constexpr int menus = 1999;
    constexpr int submenusOfEach = 20;
    Objects objects = ordinary();
    for (int i = 0; i < menus; ++i) {
        const std::string path = "/menu" + std::to_string(i);
        objects["/bar"].children.push_back(path);
        objects[path] = {menu, {}, "Menu", ""};
        for (int j = 0; j < submenusOfEach; ++j) {
            const std::string nested = path + "/" + std::to_string(j);
            objects[path].children.push_back(nested);
            objects[nested] = {menu, {}, "Submenu", ""};
        }
    }
    return behaviourOf(objects);
}

/// Its windows have thousands of menus that hang on no bar.
Behaviour looseMenus()
{
    Objects objects = ordinary();
    constexpr int ofEachWindow = 2000;
    for (int i = 0; i < 2 * ofEachWindow; ++i) {
        const std::string window = i < ofEachWindow ? "/frame2" : "/frame3";
        const std::string path = "/loose" + std::to_string(i);
        objects[window].role = frame;
        objects[window].children.push_back(path);
        objects[path] = {menu, {}, "Menu", ""};
    }
    objects[root].children.insert(objects[root].children.end(), {"/frame2", "/frame3"});
    return behaviourOf(objects);
}

/// Has no answer to the first question for what is at a point.
Behaviour silentAtFirst()
{
    Behaviour behaviour = behaviourOf(ordinary());
    const auto honest = behaviour.at;
    behaviour.at = [honest, isFirst = true](const std::string &path, int32_t x, int32_t y) mutable {
        return std::exchange(isFirst, false) ? std::nullopt : honest(path, x, y);
    };
    return behaviour;
}

const std::map<std::string_view, Behaviour (*)()> hitBehaviours{
    {"closed", closed},
    {"closed-and-hidden", closedAndHidden},
    {"elsewhere", elsewhere},
    {"everywhere", everywhere},
    {"of-another", ofAnother},
    {"submenu", submenu},
    {"submenu-of-qt", submenuOfQt},
    {"closed-submenu-of-qt", closedSubmenuOfQt},
    {"submenu-cycle", submenuCycle},
    {"submenu-cycle-of-qt", submenuCycleOfQt},
    {"endless-submenus", endlessSubmenus},
    {"crowded-bar", crowdedBar},
    {"loose-menus", looseMenus},
    {"silent-at-first", silentAtFirst},
};

} // namespace

std::optional<Behaviour> hitBehaviour(std::string_view name)
{
    const auto found = hitBehaviours.find(name);
    return found == hitBehaviours.end() ? std::nullopt : std::optional(found->second());
}

} // namespace keyvora
