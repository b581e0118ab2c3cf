// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/accessibility/Behaviour.h"

#include <cstdlib>
#include <poll.h>

namespace keyvora {

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

Behaviour cycle()
{
    Objects objects = ordinary();
    objects["/menu"].children.insert(objects["/menu"].children.end(),
                                     {"/menu", "/bar", "/frame", root, "/item0"});
    return behaviourOf(objects);
}

/// Its one menu claims a million entries, and has them, one by one.
Behaviour million()
{
    Behaviour behaviour = behaviourOf(ordinary());
    const Behaviour plain = behaviour;
    const auto isEntry = [](const std::string &path) {
        return path.starts_with("/entry");
    };
    behaviour.role = [=](const std::string &path) {
        return isEntry(path) ? menuItem : plain.role(path);
    };
    behaviour.name = [=](const std::string &path) {
        return isEntry(path) ? "Entry "s + path.substr(6) : plain.name(path);
    };
    behaviour.keyBinding = [=](const std::string &path) {
        return isEntry(path) ? "e;<Alt>f:e;<Primary>e"s : plain.keyBinding(path);
    };
    behaviour.childCount = [=](const std::string &path) {
        return path == "/menu" ? 1'000'000 : static_cast<int32_t>(plain.children(path).size());
    };
    behaviour.childAt = [](const std::string &, int32_t index) {
        return "/entry" + std::to_string(index);
    };
    return behaviour;
}

/// Claims few children and then sends very many.
Behaviour liar()
{
    Behaviour behaviour = million();
    const auto plain = behaviour.children;
    behaviour.childCount = [](const std::string &) {
        return 3;
    };
    behaviour.children = [plain](const std::string &path) {
        std::vector<std::string> children = plain(path);
        if (path == "/menu") {
            children.clear();
            for (int i = 0; i < 200'000; ++i)
                children.push_back("/entry" + std::to_string(i));
        }
        return children;
    };
    return behaviour;
}

/// Every one of its objects claims a million children, and has them.
Behaviour crowd()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.role = [](const std::string &path) {
        return path == root ? application : frame;
    };
    behaviour.childCount = [](const std::string &) {
        return 1'000'000;
    };
    behaviour.childAt = [](const std::string &path, int32_t index) {
        return path == root ? "/child" + std::to_string(index) : path + "/child" + std::to_string(index);
    };
    // It ends before the patience with it does.
    behaviour.answers = [left = 50'000]() mutable {
        return left-- > 0;
    };
    return behaviour;
}

/// Ten thousand menus, each in the one before, and an entry in the last.
Behaviour deep()
{
    constexpr int depth = 10'000;
    Objects objects = withMenu({{"First", "f;<Alt>f:f;<Primary>f"}});
    std::string parent = "/menu";
    for (int i = 0; i < depth; ++i) {
        const std::string path = "/deeper" + std::to_string(i);
        objects[path] = {menu, {}, "Deeper", ""};
        objects[parent].children.push_back(path);
        parent = path;
    }
    objects[parent].children.push_back("/last");
    objects["/last"] = {menuItem, {}, "Last", "l;<Alt>f:l;<Primary>l"};
    return behaviourOf(objects);
}

Behaviour titles()
{
    const std::string binding = "x;<Alt>f:x;<Primary>x";
    return behaviourOf(withMenu({
        {std::string(1'000'000, 'a'), binding},
        {"<b>Bold</b> <img src='file:///etc/passwd'>", binding},
        {"ab\u202Edc\u2066e", binding},
        {"bell\a and\x1b[31m red\nline", binding},
        {"New      ", binding},
        {"Manual tab\tCtrl+J", binding},
        {"", binding},
    }));
}

Behaviour keys()
{
    return behaviourOf(withMenu({
        {"Newlines", "\nU;\nS\nU;\nU"},
        {"Only modifiers", "o;<Alt>f:o;<Primary>"},
        {"Unknown modifier", "u;<Alt>f:u;<Primary><17>s"},
        {"Open bracket", "u;<Alt>f:u;<Primary"},
        {"Unknown key", "u;<Alt>f:u;<Primary>NoSuchKey"},
        {"Semicolons", ";;;;;;"},
        {"A megabyte", "m;<Alt>f:m;" + std::string(1'000'000, 'm')},
        {"Megabyte of modifiers",
         [] {
             std::string text = "m;<Alt>f:m;";
             for (int i = 0; i < 100'000; ++i)
                 text += "<Primary>";
             return text + "s";
         }()},
        {"Save", "s;<Alt>f:s;<Primary>s"},
    }));
}

Behaviour types()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.mistakesTypes = true;
    return behaviour;
}

/// Says that all its objects belong to the bus itself.
Behaviour foreign()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.owner = "org.freedesktop.DBus";
    return behaviour;
}

/// Keeps its objects ready, as GTK does, and tens of thousands that nobody can reach.
Behaviour cached()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.toolkit = "gtk";
    const Objects objects = ordinary();
    for (const auto &[path, object] : objects) {
        for (size_t i = 0; i < object.children.size(); ++i)
            behaviour.cache.emplace_back(object.children[i], path, static_cast<int32_t>(i));
    }
    for (int i = 0; i < 60'000; ++i)
        behaviour.cache.emplace_back("/unreachable" + std::to_string(i), "/nowhere", i);
    return behaviour;
}

/// Says that its bar is its own parent, and that others are, too.
Behaviour cachedCycle()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.toolkit = "gtk";
    behaviour.cache = {{"/frame", root, 0},   {"/bar", "/frame", 0},  {"/menu", "/bar", 0},
                       {"/bar", "/menu", -1}, {"/frame", "/menu", 1}, {"/menu", "/menu", 2'000'000'000},
                       {root, "/menu", 3}};
    return behaviour;
}

Behaviour ending(int answersBefore)
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.answers = [left = answersBefore]() mutable {
        if (left-- == 0)
            std::_Exit(0);
        return true;
    };
    return behaviour;
}

/// Tells what it is, then each answer takes seconds.
Behaviour slow()
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.answers = [answered = 0]() mutable {
        constexpr int quickAnswers = 4;
        if (++answered > quickAnswers)
            poll(nullptr, 0, 3000);
        return true;
    };
    return behaviour;
}

Behaviour silentAfter(int answersBefore)
{
    Behaviour behaviour = behaviourOf(ordinary());
    behaviour.answers = [left = answersBefore]() mutable {
        return left-- > 0;
    };
    return behaviour;
}

} // namespace

Behaviour treeBehaviour(std::string_view name)
{
    if (name == "cycle"sv)
        return cycle();
    if (name == "million"sv)
        return million();
    if (name == "crowd"sv)
        return crowd();
    if (name == "liar"sv)
        return liar();
    if (name == "deep"sv)
        return deep();
    if (name == "titles"sv)
        return titles();
    if (name == "keys"sv)
        return keys();
    if (name == "types"sv)
        return types();
    if (name == "foreign"sv)
        return foreign();
    if (name == "cached"sv)
        return cached();
    if (name == "cached-cycle"sv)
        return cachedCycle();
    if (name == "slow"sv)
        return slow();
    if (name == "ends"sv)
        return ending(7);
    if (name == "silent"sv)
        return silentAfter(0);
    if (name == "falls-silent"sv)
        return silentAfter(18);
    return behaviourOf(ordinary());
}

} // namespace keyvora
