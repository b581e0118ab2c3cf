// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// Measures from outside what a person does and sees: the time from a key, a click or the start of a program
// to what that program then has on the screen. Keys and clicks go in as those of a real keyboard and mouse
// do; a frame counts once the X server has drawn it. Reads one command a line and answers each with a line:
//
//     start tray|frame|whole PROGRAM         starts a program, and ends it again
//     PID EVENT tap|down|up KEY[+KEY…]       keys, such as Control_L+Alt_L+space
//     PID EVENT click|move X Y
//     PID EVENT wait                         answers "ready" first, for what happens in another way
//     PID quiet MILLISECONDS                 waits until the program has drawn nothing for that long
//
// The events of a program's window: "frame", "list" (a frame of its lower half), "keyboard" (it has the
// keyboard), "focus" (a frame, and the keyboard), "whole" (the last frame before a while without any),
// "gone", "any" (waits for nothing). The answer is the time in milliseconds, or "never".

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <poll.h>
#include <sstream>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds patience{20'000};
constexpr milliseconds stillness{500};
constexpr int smallestWindow = 100; ///< smaller ones are icons

struct Free
{
    void operator()(void *memory) const { std::free(memory); } // NOLINT
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

struct Window
{
    int width = 0;
    int height = 0;
};

/// What has happened since a command began.
struct Seen
{
    bool frame = false;
    bool listFrame = false;
    bool gone = false;
    bool focus = false;
    bool dockRequest = false;
};

[[noreturn]] void fail(const std::string &what)
{
    std::cerr << "keyvora_screen_clock: " << what << '\n';
    std::exit(1); // NOLINT
}

class Screen
{
public:
    Screen()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection) != 0)
            fail("no screen");
        const xcb_setup_t *setup = xcb_get_setup(m_connection);
        m_root = xcb_setup_roots_iterator(setup).data->root;
        const auto *damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
        if (damage == nullptr || damage->present == 0)
            fail("the screen does not tell what is drawn");
        m_damageEvent = damage->first_event + XCB_DAMAGE_NOTIFY;
        const Owned<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
            m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
        m_activeWindow = atom("_NET_ACTIVE_WINDOW");
        m_pid = atom("_NET_WM_PID");
        m_trayOpcode = atom("_NET_SYSTEM_TRAY_OPCODE");
        select(m_root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
        watchTree(m_root);
        readKeyboard(*setup);
    }

    /// Takes the place of the status area, which no other program may have.
    void becomeTray()
    {
        m_trayWindow = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_trayWindow, m_root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_connection, m_trayWindow, atom("_NET_SYSTEM_TRAY_S0"), XCB_CURRENT_TIME);
        flush();
    }

    void ceaseToBeTray()
    {
        xcb_destroy_window(m_connection, m_trayWindow);
        flush();
    }

    void key(const std::string &name, bool isDown)
    {
        xcb_test_fake_input(m_connection, isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keyCode(name), 0, m_root,
                            0, 0, 0);
    }

    void movePointer(int16_t x, int16_t y)
    {
        xcb_test_fake_input(m_connection, XCB_MOTION_NOTIFY, 0, 0, m_root, x, y, 0);
    }

    void click()
    {
        xcb_test_fake_input(m_connection, XCB_BUTTON_PRESS, 1, 0, m_root, 0, 0, 0);
        xcb_test_fake_input(m_connection, XCB_BUTTON_RELEASE, 1, 0, m_root, 0, 0, 0);
    }

    void flush() { xcb_flush(m_connection); }

    /// From here on `seen` tells of that process. What it did before is forgotten.
    void follow(pid_t pid)
    {
        // An answer from the server comes after all the events before it.
        const Owned<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        m_followed = pid;
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
            handle(*event);
        m_seen = {};
    }

    [[nodiscard]] const Seen &seen() const { return m_seen; }
    void forgetFrames() { m_seen.frame = false; }

    /// Waits for the next events and takes them in; false when there were none until then.
    bool handleEvents(Clock::time_point deadline)
    {
        bool hasHandled = false;
        while (true) {
            while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
                handle(*event);
                hasHandled = true;
            }
            if (hasHandled)
                return true;
            const auto left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
            if (left < 0)
                return false;
            pollfd descriptor{.fd = xcb_get_file_descriptor(m_connection), .events = POLLIN, .revents = 0};
            poll(&descriptor, 1, static_cast<int>(left) + 1);
            if (xcb_connection_has_error(m_connection) != 0)
                fail("the screen is gone");
        }
    }

private:
    xcb_atom_t atom(const std::string &name)
    {
        const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.data());
        const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
        if (!reply)
            fail("no atoms");
        return reply->atom;
    }

    void select(xcb_window_t window, uint32_t events)
    {
        xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &events);
    }

    std::optional<uint32_t> number(xcb_window_t window, xcb_atom_t property)
    {
        const auto cookie = xcb_get_property(m_connection, 0, window, property, XCB_ATOM_ANY, 0, 1);
        const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
        if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
            return std::nullopt;
        return *static_cast<const uint32_t *>(xcb_get_property_value(reply.get()));
    }

    /// What a window belongs to is asked once: it may be destroyed by the time its end is heard of.
    bool isFollowed(xcb_window_t window)
    {
        if (m_followed == 0)
            return false;
        uint32_t &owner = m_owners[window];
        if (owner == 0)
            owner = number(window, m_pid).value_or(0);
        return owner == static_cast<uint32_t>(m_followed);
    }

    void watchTree(xcb_window_t parent)
    {
        const Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, parent), nullptr));
        if (!tree)
            return;
        const xcb_window_t *children = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            watch(children[i]);
            watchTree(children[i]);
        }
    }

    void watch(xcb_window_t window)
    {
        const Owned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        if (!geometry || m_windows.contains(window))
            return;
        m_windows[window] = {.width = geometry->width, .height = geometry->height};
        select(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        xcb_damage_create(m_connection, xcb_generate_id(m_connection), window,
                          XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        flush();
    }

    void handle(const xcb_generic_event_t &event)
    {
        const int type = event.response_type & 0x7f;
        if (type == m_damageEvent) {
            handleDamage(reinterpret_cast<const xcb_damage_notify_event_t &>(event));
            return;
        }
        switch (type) {
        case XCB_CREATE_NOTIFY:
            watch(reinterpret_cast<const xcb_create_notify_event_t &>(event).window);
            break;
        case XCB_CONFIGURE_NOTIFY: {
            const auto &configured = reinterpret_cast<const xcb_configure_notify_event_t &>(event);
            if (const auto found = m_windows.find(configured.window); found != m_windows.end())
                found->second = {.width = configured.width, .height = configured.height};
            break;
        }
        case XCB_UNMAP_NOTIFY: {
            const auto &unmapped = reinterpret_cast<const xcb_unmap_notify_event_t &>(event);
            const auto found = m_windows.find(unmapped.window);
            if (found != m_windows.end() && found->second.width >= smallestWindow &&
                isFollowed(unmapped.window))
                m_seen.gone = true;
            break;
        }
        case XCB_DESTROY_NOTIFY:
            forget(reinterpret_cast<const xcb_destroy_notify_event_t &>(event).window);
            break;
        case XCB_PROPERTY_NOTIFY:
            if (reinterpret_cast<const xcb_property_notify_event_t &>(event).atom == m_activeWindow) {
                const auto active = number(m_root, m_activeWindow);
                m_seen.focus = active && *active != 0 && isFollowed(*active);
            }
            break;
        case XCB_CLIENT_MESSAGE: {
            constexpr uint32_t requestDock = 0;
            const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(event);
            if (message.type == m_trayOpcode && message.data.data32[1] == requestDock)
                m_seen.dockRequest = true;
            break;
        }
        default:
            break;
        }
    }

    void handleDamage(const xcb_damage_notify_event_t &damage)
    {
        const auto found = m_windows.find(damage.drawable);
        if (found == m_windows.end() || found->second.width < smallestWindow || !isFollowed(damage.drawable))
            return;
        m_seen.frame = true;
        if (damage.area.y + damage.area.height > found->second.height / 2)
            m_seen.listFrame = true;
    }

    void forget(xcb_window_t window)
    {
        m_windows.erase(window);
        m_owners.erase(window);
    }

    void readKeyboard(const xcb_setup_t &setup)
    {
        const auto count = static_cast<uint8_t>(setup.max_keycode - setup.min_keycode + 1);
        const Owned<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(
            m_connection, xcb_get_keyboard_mapping(m_connection, setup.min_keycode, count), nullptr));
        if (!map)
            fail("no keyboard");
        const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(map.get());
        for (int i = 0; i < count; ++i) {
            const xcb_keysym_t symbol = symbols[static_cast<ptrdiff_t>(i) * map->keysyms_per_keycode];
            m_keyCodes.try_emplace(symbol, static_cast<xcb_keycode_t>(setup.min_keycode + i));
        }
    }

    xcb_keycode_t keyCode(const std::string &name) const
    {
        static const std::map<std::string, xcb_keysym_t> names{{"space", 0x20},
                                                               {"BackSpace", 0xff08},
                                                               {"Escape", 0xff1b},
                                                               {"Control_L", 0xffe3},
                                                               {"Alt_L", 0xffe9}};
        const auto named = names.find(name);
        const xcb_keysym_t symbol =
            named != names.end() ? named->second : static_cast<xcb_keysym_t>(name.at(0));
        const auto found = m_keyCodes.find(symbol);
        if (found == m_keyCodes.end())
            fail("no key " + name);
        return found->second;
    }

    xcb_connection_t *m_connection;
    xcb_window_t m_root = 0;
    xcb_window_t m_trayWindow = 0;
    int m_damageEvent = 0;
    xcb_atom_t m_activeWindow = 0;
    xcb_atom_t m_pid = 0;
    xcb_atom_t m_trayOpcode = 0;
    std::map<xcb_keysym_t, xcb_keycode_t> m_keyCodes;
    std::map<xcb_window_t, Window> m_windows;
    std::map<xcb_window_t, uint32_t> m_owners;
    pid_t m_followed = 0;
    Seen m_seen;
};

bool hasCome(const Seen &seen, const std::string &event)
{
    if (event == "frame")
        return seen.frame;
    if (event == "list")
        return seen.listFrame;
    if (event == "keyboard")
        return seen.focus;
    if (event == "focus")
        return seen.frame && seen.focus;
    if (event == "gone")
        return seen.gone;
    if (event == "tray")
        return seen.dockRequest;
    if (event == "any")
        return true;
    fail("no event " + event);
}

void answer(Clock::duration time)
{
    std::cout << std::chrono::duration<double, std::milli>(time).count() << std::endl; // NOLINT
}

/// When the last frame before the given time without any came; `since`, when none came.
Clock::time_point lastFrame(Screen &screen, Clock::time_point since, milliseconds time)
{
    const auto end = since + patience;
    auto last = since;
    screen.forgetFrames();
    while (Clock::now() < std::min(last + time, end)) {
        screen.handleEvents(last + time);
        if (screen.seen().frame)
            last = Clock::now();
        screen.forgetFrames();
    }
    return last;
}

void answerTimeTo(Screen &screen, const std::string &event, Clock::time_point start)
{
    const bool isWhole = event == "whole";
    while (!hasCome(screen.seen(), isWhole ? "frame" : event)) {
        if (!screen.handleEvents(start + patience)) {
            std::cout << "never" << std::endl; // NOLINT
            return;
        }
    }
    const auto now = Clock::now();
    answer((isWhole ? lastFrame(screen, now, stillness) : now) - start);
}

/// From the moment before the process exists.
void startProgram(Screen &screen, std::istream &line)
{
    std::string event;
    std::string program;
    line >> event >> std::ws;
    std::getline(line, program);
    if (event == "tray")
        screen.becomeTray();
    // What is under the pointer may move for a while.
    screen.movePointer(0, 0);
    screen.follow(0);
    const auto start = Clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(127);
    }
    screen.follow(pid);
    answerTimeTo(screen, event, start);
    if (event == "tray")
        screen.ceaseToBeTray();
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
}

std::vector<std::string> keysOf(const std::string &combination)
{
    std::vector<std::string> keys;
    std::istringstream stream(combination);
    for (std::string key; std::getline(stream, key, '+');)
        keys.push_back(key);
    return keys;
}

void act(Screen &screen, const std::string &action, std::istream &line)
{
    std::string combination;
    if (action == "click" || action == "move") {
        int16_t x = 0;
        int16_t y = 0;
        line >> x >> y;
        screen.movePointer(x, y);
        if (action == "click")
            screen.click();
    } else if (action == "wait") {
        std::cout << "ready" << std::endl; // NOLINT
    } else {
        line >> combination;
        std::vector<std::string> keys = keysOf(combination);
        if (action != "up") {
            for (const std::string &key : keys)
                screen.key(key, true);
        }
        std::ranges::reverse(keys);
        if (action != "down") {
            for (const std::string &key : keys)
                screen.key(key, false);
        }
    }
    screen.flush();
}

} // namespace

int main()
{
    Screen screen;
    for (std::string text; std::getline(std::cin, text);) {
        std::istringstream line(text);
        std::string who;
        std::string event;
        std::string action;
        line >> who;
        if (who == "start") {
            startProgram(screen, line);
            continue;
        }
        line >> event >> action;
        screen.follow(std::stoi(who));
        if (event == "quiet") {
            const auto start = Clock::now();
            answer(lastFrame(screen, start, milliseconds(std::stoi(action))) - start);
            continue;
        }
        const auto start = Clock::now();
        act(screen, action, line);
        answerTimeTo(screen, event, start);
    }
    return 0;
}
