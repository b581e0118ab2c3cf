// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// An application on the accessibility bus that behaves as its argument says. It prints "ready" once it is
// registered, and ends with its standard input.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <poll.h>
#include <string>
#include <string_view>
#include <systemd/sd-bus.h>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

enum Role : uint32_t { frame = 23, menu = 33, menuBar = 34, menuItem = 35, application = 75 };

const std::string root = "/org/a11y/atspi/accessible/root";

/// What the objects of an application answer.
struct Behaviour
{
    std::function<uint32_t(const std::string &)> role;
    std::function<std::vector<std::string>(const std::string &)> children;
    std::function<std::string(const std::string &)> name = [](const std::string &) {
        return ""s;
    };
    std::function<std::string(const std::string &)> keyBinding = [](const std::string &) {
        return ""s;
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
};
using Objects = std::map<std::string, Object>;

/// A window with a menu bar and one menu with these entries.
Objects withMenu(const std::vector<std::pair<std::string, std::string>> &entries)
{
    Objects objects{{root, {application, {"/frame"}, "strange", ""}},
                    {"/frame", {frame, {"/bar"}, "window", ""}},
                    {"/bar", {menuBar, {"/menu"}, "", ""}},
                    {"/menu", {menu, {}, "File", "<Alt>f;<Alt>f;"}}};
    for (size_t i = 0; i < entries.size(); ++i) {
        const std::string path = "/item" + std::to_string(i);
        objects["/menu"].children.push_back(path);
        objects[path] = {menuItem, {}, entries[i].first, entries[i].second};
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
    return {.role = [object](const std::string &path) { return object(path).role; },
            .children = [object](const std::string &path) { return object(path).children; },
            .name = [object](const std::string &path) { return object(path).name; },
            .keyBinding =
                [object](const std::string &path) {
                    return object(path).keyBinding;
                }};
}

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

Behaviour named(std::string_view name)
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

void appendReference(sd_bus_message *reply, const std::string &owner, const std::string &path)
{
    sd_bus_message_append(reply, "(so)", owner.c_str(), path.c_str());
}

int answer(sd_bus_message *call, void *data, sd_bus_error * /*error*/)
{
    const auto *behaviour = static_cast<const Behaviour *>(data);
    uint8_t type = 0;
    if (sd_bus_message_get_type(call, &type) < 0 || type != SD_BUS_MESSAGE_METHOD_CALL)
        return 0;
    if (!behaviour->answers())
        return 1;
    const std::string path = sd_bus_message_get_path(call);
    const std::string_view method = sd_bus_message_get_member(call);
    sd_bus *bus = sd_bus_message_get_bus(call);
    const char *uniqueName = nullptr;
    sd_bus_get_unique_name(bus, &uniqueName);
    const std::string owner = behaviour->owner.empty() ? uniqueName : behaviour->owner;
    const auto childCount = [&] {
        return behaviour->childCount ? behaviour->childCount(path)
                                     : static_cast<int32_t>(behaviour->children(path).size());
    };

    sd_bus_message *reply = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    if (method == "GetRole"sv) {
        sd_bus_message_append(reply, "u", behaviour->role(path));
    } else if (method == "GetChildren"sv) {
        sd_bus_message_open_container(reply, 'a', "(so)");
        for (const std::string &child : behaviour->children(path))
            appendReference(reply, owner, child);
        sd_bus_message_close_container(reply);
    } else if (method == "GetChildAtIndex"sv) {
        int32_t index = 0;
        sd_bus_message_read(call, "i", &index);
        appendReference(reply, owner, behaviour->childAt(path, index));
    } else if (method == "GetKeyBinding"sv) {
        if (behaviour->mistakesTypes)
            sd_bus_message_append(reply, "i", 42);
        else
            sd_bus_message_append(reply, "s", behaviour->keyBinding(path).c_str());
    } else if (method == "Get"sv) {
        const char *interface = nullptr;
        const char *property = nullptr;
        sd_bus_message_read(call, "ss", &interface, &property);
        if (property == "ChildCount"sv)
            sd_bus_message_append(reply, "v", "i", childCount());
        else if (property == "Name"sv && behaviour->mistakesTypes)
            sd_bus_message_append(reply, "v", "as", 1, "name");
        else if (property == "Name"sv)
            sd_bus_message_append(reply, "v", "s", behaviour->name(path).c_str());
        else
            sd_bus_message_append(reply, "v", "s", behaviour->toolkit.c_str());
    } else if (method == "GetState"sv) {
        sd_bus_message_append(reply, "au", 2, 1U << 30U, 0U); // visible
    } else if (method == "GetItems"sv) {
        sd_bus_message_open_container(reply, 'a', "((so)(so)(so)iiassusau)");
        for (const auto &[object, parent, index] : behaviour->cache) {
            sd_bus_message_append(
                reply, "((so)(so)(so)iiassusau)", uniqueName, object.c_str(), uniqueName, root.c_str(),
                uniqueName, parent.c_str(), index, static_cast<int32_t>(behaviour->children(object).size()),
                0, behaviour->name(object).c_str(), behaviour->role(object), "", 2, 1U << 30U, 0U);
        }
        sd_bus_message_close_container(reply);
    } else {
        sd_bus_message_unref(reply);
        return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "not known");
    }
    const int result = sd_bus_send(bus, reply, nullptr);
    sd_bus_message_unref(reply);
    return result < 0 ? result : 1;
}

sd_bus *openAccessibilityBus()
{
    sd_bus *session = nullptr;
    sd_bus_message *reply = nullptr;
    const char *address = nullptr;
    if (sd_bus_open_user(&session) < 0 ||
        sd_bus_call_method(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr,
                           &reply, "") < 0 ||
        sd_bus_message_read(reply, "s", &address) < 0)
        return nullptr;
    sd_bus *bus = nullptr;
    const bool isOpen = sd_bus_new(&bus) >= 0 && sd_bus_set_address(bus, address) >= 0 &&
                        sd_bus_set_bus_client(bus, 1) >= 0 && sd_bus_start(bus) >= 0;
    sd_bus_message_unref(reply);
    sd_bus_flush_close_unref(session);
    return isOpen ? bus : nullptr;
}

bool joinRegistry(sd_bus *bus)
{
    const char *uniqueName = nullptr;
    return sd_bus_get_unique_name(bus, &uniqueName) >= 0 &&
           sd_bus_call_method(bus, "org.a11y.atspi.Registry", root.c_str(), "org.a11y.atspi.Socket", "Embed",
                              nullptr, nullptr, "(so)", uniqueName, root.c_str()) >= 0;
}

} // namespace

int main(int argc, char **argv)
{
    Behaviour behaviour = named(argc > 1 ? argv[1] : "ordinary");
    sd_bus *bus = openAccessibilityBus();
    if (bus == nullptr || !joinRegistry(bus) || sd_bus_add_filter(bus, nullptr, &answer, &behaviour) < 0)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    while (true) {
        const int processed = sd_bus_process(bus, nullptr);
        if (processed < 0)
            return 1;
        if (processed > 0)
            continue;
        std::array<pollfd, 2> descriptors{
            pollfd{
                .fd = sd_bus_get_fd(bus), .events = static_cast<short>(sd_bus_get_events(bus)), .revents = 0},
            pollfd{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0},
        };
        poll(descriptors.data(), descriptors.size(), -1);
        if (descriptors[1].revents != 0)
            return 0;
    }
}
