// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// An application on the accessibility bus that behaves as its argument says. It prints "ready" once it is
// registered, and ends with its standard input; then it prints how often it was asked what.

#include "contract/accessibility/Behaviour.h"

#include <array>
#include <cstdio>
#include <poll.h>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace keyvora {

namespace {

using namespace std::string_view_literals;

struct Program
{
    Behaviour behaviour;
    /// How often each method was called.
    std::map<std::string, int> asked = {};
};

void appendReference(sd_bus_message *reply, const std::string &owner, const std::string &path)
{
    sd_bus_message_append(reply, "(so)", owner.c_str(), path.c_str());
}

void appendProperty(sd_bus_message *reply, const Behaviour &behaviour, const std::string &path,
                    std::string_view property)
{
    if (property == "ChildCount"sv) {
        const int32_t count = behaviour.childCount ? behaviour.childCount(path)
                                                   : static_cast<int32_t>(behaviour.children(path).size());
        sd_bus_message_append(reply, "v", "i", count);
    } else if (property == "Name"sv && behaviour.mistakesTypes) {
        sd_bus_message_append(reply, "v", "as", 1, "name");
    } else if (property == "Name"sv) {
        sd_bus_message_append(reply, "v", "s", behaviour.name(path).c_str());
    } else {
        sd_bus_message_append(reply, "v", "s", behaviour.toolkit.c_str());
    }
}

void appendCache(sd_bus_message *reply, const Behaviour &behaviour, const char *uniqueName)
{
    sd_bus_message_open_container(reply, 'a', "((so)(so)(so)iiassusau)");
    for (const auto &[object, parent, index] : behaviour.cache) {
        sd_bus_message_append(reply, "((so)(so)(so)iiassusau)", uniqueName, object.c_str(), uniqueName,
                              root.c_str(), uniqueName, parent.c_str(), index,
                              static_cast<int32_t>(behaviour.children(object).size()), 0,
                              behaviour.name(object).c_str(), behaviour.role(object), "", 2,
                              behaviour.place(object).states, 0U);
    }
    sd_bus_message_close_container(reply);
}

/// What an object says of the screen. False when it keeps silent.
bool appendComponent(sd_bus_message *call, sd_bus_message *reply, const Behaviour &behaviour,
                     const std::string &path, const char *uniqueName)
{
    // The only coordinates that it knows; others are nowhere.
    constexpr uint32_t screenCoordinates = 0;
    int32_t x = 0;
    int32_t y = 0;
    uint32_t coordinates = 0;
    if (sd_bus_message_get_member(call) == "GetExtents"sv) {
        sd_bus_message_read(call, "u", &coordinates);
        const Place place = coordinates == screenCoordinates ? behaviour.place(path) : Place{};
        sd_bus_message_append(reply, "(iiii)", place.x, place.y, place.width, place.height);
        return true;
    }
    sd_bus_message_read(call, "iiu", &x, &y, &coordinates);
    const std::optional<Reference> found =
        coordinates == screenCoordinates ? behaviour.at(path, x, y) : Reference{noObject};
    if (found)
        appendReference(reply, found->owner.empty() ? uniqueName : found->owner, found->path);
    return found.has_value();
}

int answer(sd_bus_message *call, void *data, sd_bus_error * /*error*/)
{
    auto &[behaviour, asked] = *static_cast<Program *>(data);
    uint8_t type = 0;
    if (sd_bus_message_get_type(call, &type) < 0 || type != SD_BUS_MESSAGE_METHOD_CALL)
        return 0;
    const std::string path = sd_bus_message_get_path(call);
    const std::string_view method = sd_bus_message_get_member(call);
    ++asked[std::string(method)];
    if (!behaviour.answers())
        return 1;
    sd_bus *bus = sd_bus_message_get_bus(call);
    const char *uniqueName = nullptr;
    sd_bus_get_unique_name(bus, &uniqueName);
    const std::string owner = behaviour.owner.empty() ? uniqueName : behaviour.owner;

    sd_bus_message *reply = nullptr;
    sd_bus_message_new_method_return(call, &reply);
    if (method == "GetRole"sv) {
        sd_bus_message_append(reply, "u", behaviour.role(path));
    } else if (method == "GetChildren"sv) {
        sd_bus_message_open_container(reply, 'a', "(so)");
        for (const std::string &child : behaviour.children(path))
            appendReference(reply, owner, child);
        sd_bus_message_close_container(reply);
    } else if (method == "GetChildAtIndex"sv) {
        int32_t index = 0;
        sd_bus_message_read(call, "i", &index);
        appendReference(reply, owner, behaviour.childAt(path, index));
    } else if (method == "GetKeyBinding"sv) {
        if (behaviour.mistakesTypes)
            sd_bus_message_append(reply, "i", 42);
        else
            sd_bus_message_append(reply, "s", behaviour.keyBinding(path).c_str());
    } else if (method == "Get"sv) {
        const char *interface = nullptr;
        const char *property = nullptr;
        sd_bus_message_read(call, "ss", &interface, &property);
        appendProperty(reply, behaviour, path, property);
    } else if (method == "GetState"sv) {
        sd_bus_message_append(reply, "au", 2, behaviour.place(path).states, 0U);
    } else if (method == "GetAccessibleAtPoint"sv || method == "GetExtents"sv) {
        if (!appendComponent(call, reply, behaviour, path, uniqueName)) {
            sd_bus_message_unref(reply);
            return 1;
        }
    } else if (method == "GetItems"sv) {
        appendCache(reply, behaviour, uniqueName);
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

/// Until the standard input ends; false when the bus does before.
bool serve(sd_bus *bus)
{
    while (true) {
        const int processed = sd_bus_process(bus, nullptr);
        if (processed < 0)
            return false;
        if (processed > 0)
            continue;
        std::array<pollfd, 2> descriptors{
            pollfd{
                .fd = sd_bus_get_fd(bus), .events = static_cast<short>(sd_bus_get_events(bus)), .revents = 0},
            pollfd{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0},
        };
        poll(descriptors.data(), descriptors.size(), -1);
        if (descriptors[1].revents != 0)
            return true;
    }
}

} // namespace

} // namespace keyvora

int main(int argc, char **argv)
{
    using namespace keyvora;
    const std::string_view name = argc > 1 ? argv[1] : "ordinary";
    std::optional<Behaviour> strange = hitBehaviour(name);
    Program program{strange ? *std::move(strange) : treeBehaviour(name)};
    sd_bus *bus = openAccessibilityBus();
    if (bus == nullptr || !joinRegistry(bus) || sd_bus_add_filter(bus, nullptr, &answer, &program) < 0)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    if (!serve(bus))
        return 1;
    for (const auto &[method, count] : program.asked)
        std::printf("%s %d\n", method.c_str(), count);
    return 0;
}
