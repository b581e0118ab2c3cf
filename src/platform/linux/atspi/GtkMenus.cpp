// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/GtkMenus.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbData.h"
#include "platform/linux/atspi/Accelerator.h"
#include "platform/linux/atspi/BusPipeline.h"
#include "platform/linux/atspi/MenuTreeReader.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>
#include <cstring>
#include <memory>
#include <systemd/sd-bus.h>
#include <utility>
#include <vector>
#include <xcb/xcb.h>

namespace keyvora {

namespace {

constexpr uint32_t maximumWindows = 4096;
constexpr uint32_t maximumNameBytes = 512;
constexpr qsizetype maximumItems = 20'000;
constexpr qsizetype maximumGroups = 256;
constexpr qsizetype maximumTextLength = 1024;

// --- The windows -------------------------------------------------------------------------------------------

struct Disconnect
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
using Display = std::unique_ptr<xcb_connection_t, Disconnect>;

xcb_atom_t atom(const Display &display, const char *name)
{
    const auto cookie = xcb_intern_atom(display.get(), 1, static_cast<uint16_t>(std::strlen(name)), name);
    const XcbOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display.get(), cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QByteArray property(const Display &display, xcb_window_t window, xcb_atom_t name, uint32_t maximumBytes)
{
    const auto cookie =
        xcb_get_property(display.get(), 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, maximumBytes / 4);
    const XcbOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(display.get(), cookie, nullptr));
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

std::vector<uint32_t> numbers(const QByteArray &bytes)
{
    std::vector<uint32_t> values(static_cast<size_t>(bytes.size()) / sizeof(uint32_t));
    std::memcpy(values.data(), bytes.constData(), values.size() * sizeof(uint32_t));
    return values;
}

// --- The model ---------------------------------------------------------------------------------------------

/// A menu's address: group and number.
using MenuId = std::pair<uint32_t, uint32_t>;

struct Item
{
    QString label;
    QString accelerator;
    std::optional<MenuId> section;
    std::optional<MenuId> submenu;
};

class Model
{
public:
    Model(BusPipeline &session, const GtkMenuBar &bar)
        : m_session(session)
        , m_bar(bar)
    {
    }

    /// Reads the group of the bar and those that it leads to. False when nothing came.
    bool read()
    {
        subscribe(0);
        m_session.run();
        return m_menus.contains({0, 0});
    }

    [[nodiscard]] MenuTree tree() const
    {
        MenuTree tree;
        tree.elements.emplace_back();
        struct Step
        {
            const Item *item;
            size_t parent;
        };
        std::vector<Step> steps;
        QSet<MenuId> visited;
        const auto enter = [&](const MenuId &menu, size_t parent) {
            const auto items = m_menus.constFind(menu);
            if (items == m_menus.constEnd() || visited.contains(menu))
                return;
            visited.insert(menu);
            // The last pushed comes first.
            for (auto item = items->crbegin(); item != items->crend(); ++item)
                steps.push_back({.item = &*item, .parent = parent});
        };
        enter({0, 0}, 0);
        while (!steps.empty()) {
            const Step step = steps.back();
            steps.pop_back();
            if (step.item->section) {
                enter(*step.item->section, step.parent);
                continue;
            }
            const size_t index = tree.elements.size();
            tree.elements.push_back(element(*step.item));
            tree.elements[step.parent].children.push_back(static_cast<int>(index));
            if (step.item->submenu)
                enter(*step.item->submenu, index);
        }
        return tree;
    }

private:
    static MenuElement element(const Item &item)
    {
        MenuElement element{.title = menuTitle(withoutMnemonic(item.label)),
                            .commandCharacter = {},
                            .modifiers = {},
                            .children = {}};
        if (auto accelerator = parseGtkAccelerator(item.accelerator)) {
            element.commandCharacter = std::move(accelerator->commandCharacter);
            element.modifiers = accelerator->modifiers;
        }
        return element;
    }

    void subscribe(uint32_t group)
    {
        if (m_groups.size() >= maximumGroups || m_groups.contains(group))
            return;
        m_groups.insert(group);
        m_session.call({.destination = m_bar.busName,
                        .path = m_bar.objectPath,
                        .interface = "org.gtk.Menus",
                        .method = "Start",
                        .arguments =
                            [group](sd_bus_message *call) {
                                sd_bus_message_append(call, "au", 1, group);
                            }},
                       [this](sd_bus_message *reply) {
                           if (reply != nullptr)
                               readMenus(reply);
                       });
    }

    void readMenus(sd_bus_message *reply)
    {
        if (sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "(uuaa{sv})") <= 0)
            return;
        while (sd_bus_message_enter_container(reply, SD_BUS_TYPE_STRUCT, "uuaa{sv}") > 0) {
            MenuId menu;
            sd_bus_message_read(reply, "uu", &menu.first, &menu.second);
            if (m_menus.size() >= maximumItems)
                return;
            readItems(reply, m_menus[menu]);
            if (sd_bus_message_exit_container(reply) < 0)
                return;
        }
    }

    void readItems(sd_bus_message *reply, QList<Item> &items)
    {
        if (sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "a{sv}") <= 0)
            return;
        while (sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "{sv}") > 0) {
            Item item;
            while (sd_bus_message_enter_container(reply, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
                readAttribute(reply, item);
                if (sd_bus_message_exit_container(reply) < 0)
                    return;
            }
            if (sd_bus_message_exit_container(reply) < 0)
                return;
            for (const auto &link : {item.section, item.submenu}) {
                if (link)
                    subscribe(link->first);
            }
            if (++m_itemCount <= maximumItems)
                items.append(std::move(item));
        }
        sd_bus_message_exit_container(reply);
    }

    static void readAttribute(sd_bus_message *reply, Item &item)
    {
        const char *name = nullptr;
        const char *type = nullptr;
        if (sd_bus_message_read(reply, "s", &name) <= 0 ||
            sd_bus_message_peek_type(reply, nullptr, &type) <= 0)
            return;
        const auto is = [](const char *text, const char *other) {
            return std::strcmp(text, other) == 0;
        };
        if (is(type, "s") && is(name, "label")) {
            item.label = text(reply);
        } else if (is(type, "s") && is(name, "accel")) {
            item.accelerator = text(reply);
        } else if (is(type, "(uu)") && is(name, ":section")) {
            item.section = link(reply);
        } else if (is(type, "(uu)") && is(name, ":submenu")) {
            item.submenu = link(reply);
        } else {
            sd_bus_message_skip(reply, "v");
        }
    }

    static QString text(sd_bus_message *reply)
    {
        const char *text = nullptr;
        if (sd_bus_message_read(reply, "v", "s", &text) <= 0)
            return {};
        return QString::fromUtf8(text, static_cast<qsizetype>(strnlen(text, maximumTextLength)));
    }

    static std::optional<MenuId> link(sd_bus_message *reply)
    {
        MenuId menu;
        if (sd_bus_message_read(reply, "v", "(uu)", &menu.first, &menu.second) <= 0)
            return std::nullopt;
        return menu;
    }

    BusPipeline &m_session;
    const GtkMenuBar &m_bar;
    QHash<MenuId, QList<Item>> m_menus;
    QSet<uint32_t> m_groups;
    qsizetype m_itemCount = 0;
};

} // namespace

std::optional<GtkMenuBar> findGtkMenuBar(qint32 pid)
{
    int screenNumber = 0;
    const Display display(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(display.get()) != 0)
        return std::nullopt;
    const xcb_atom_t clientList = atom(display, "_NET_CLIENT_LIST");
    const xcb_atom_t windowPid = atom(display, "_NET_WM_PID");
    const xcb_atom_t busName = atom(display, "_GTK_UNIQUE_BUS_NAME");
    const xcb_atom_t menuBar = atom(display, "_GTK_MENUBAR_OBJECT_PATH");
    if (menuBar == XCB_ATOM_NONE)
        return std::nullopt;
    const QByteArray windows = property(display, X11Connection::rootOfScreen(display.get(), screenNumber),
                                        clientList, maximumWindows * sizeof(xcb_window_t));
    for (const xcb_window_t window : numbers(windows)) {
        const auto owner = numbers(property(display, window, windowPid, sizeof(uint32_t)));
        if (owner.empty() || owner.front() != static_cast<uint32_t>(pid))
            continue;
        GtkMenuBar bar{property(display, window, busName, maximumNameBytes),
                       property(display, window, menuBar, maximumNameBytes)};
        if (!bar.busName.isEmpty() && !bar.objectPath.isEmpty())
            return bar;
    }
    return std::nullopt;
}

std::optional<MenuTree> readGtkMenuBar(BusPipeline &session, const GtkMenuBar &bar)
{
    Model model(session, bar);
    if (!model.read())
        return std::nullopt;
    return model.tree();
}

QString withoutMnemonic(const QString &label)
{
    QString result;
    result.reserve(label.size());
    for (qsizetype i = 0; i < label.size(); ++i) {
        if (label.at(i) == u'_' && ++i >= label.size())
            break;
        result.append(label.at(i));
    }
    return result;
}

} // namespace keyvora
