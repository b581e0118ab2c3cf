// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/AtspiApplication.h"

#include "platform/linux/atspi/BusPipeline.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <systemd/sd-bus.h>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *accessibleInterface = "org.a11y.atspi.Accessible";
constexpr const char *actionInterface = "org.a11y.atspi.Action";
constexpr const char *applicationInterface = "org.a11y.atspi.Application";
constexpr const char *componentInterface = "org.a11y.atspi.Component";
constexpr const char *cacheInterface = "org.a11y.atspi.Cache";
constexpr const char *noObject = "/org/a11y/atspi/null";
constexpr uint32_t screenCoordinates = 0;

constexpr qsizetype maximumCacheEntries = 50'000;
constexpr size_t maximumTextBytes = 1024;
constexpr size_t maximumPathBytes = 512;

QString limitedText(const char *text)
{
    // The last character may be cut in two; who shows the text cuts much earlier.
    return QString::fromUtf8(text, static_cast<qsizetype>(strnlen(text, maximumTextBytes)));
}

QString readText(sd_bus_message *message)
{
    const char *text = nullptr;
    return sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, static_cast<void *>(&text)) > 0
               ? limitedText(text)
               : QString();
}

AtspiStates readStates(sd_bus_message *message)
{
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "u") <= 0)
        return {};
    uint64_t bits = 0;
    uint32_t word = 0;
    for (unsigned shift = 0; sd_bus_message_read_basic(message, SD_BUS_TYPE_UINT32, &word) > 0; shift += 32) {
        if (shift < 64)
            bits |= static_cast<uint64_t>(word) << shift;
    }
    sd_bus_message_exit_container(message);
    return AtspiStates(bits);
}

} // namespace

AtspiApplication::AtspiApplication(BusPipeline &bus, QByteArray busName)
    : m_bus(bus)
    , m_busName(std::move(busName))
{
}

void AtspiApplication::loadCache()
{
    askToolkitName([this] {
        // Qt's is always empty, and a browser would send all that is on its pages.
        if (!isGtk())
            return;
        m_bus.call({.destination = m_busName,
                    .path = "/org/a11y/atspi/cache",
                    .interface = cacheInterface,
                    .method = "GetItems"},
                   [this](sd_bus_message *reply) {
                       if (reply != nullptr)
                           readCache(reply);
                   });
    });
}

void AtspiApplication::loadToolkitName()
{
    askToolkitName([] {});
}

void AtspiApplication::askToolkitName(std::function<void()> done)
{
    m_bus.call(propertyCall(atspiRootPath, applicationInterface, "ToolkitName"),
               [this, done = std::move(done)](sd_bus_message *reply) {
                   const char *name = nullptr;
                   if (reply != nullptr && sd_bus_message_read(reply, "v", "s", &name) > 0)
                       m_toolkit = QByteArray(name, static_cast<qsizetype>(strnlen(name, maximumTextBytes)));
                   done();
               });
}

void AtspiApplication::readCache(sd_bus_message *reply)
{
    if (sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "((so)(so)(so)iiassusau)") <= 0)
        return;
    while (m_cache.size() < maximumCacheEntries &&
           sd_bus_message_enter_container(reply, SD_BUS_TYPE_STRUCT, "(so)(so)(so)iiassusau") > 0) {
        const std::optional<QByteArray> self = readReference(reply);
        Facts facts;
        sd_bus_message_skip(reply, "(so)");
        facts.parent = readReference(reply).value_or(QByteArray());
        int32_t index = 0;
        int32_t childCount = 0;
        sd_bus_message_read(reply, "ii", &index, &childCount);
        facts.index = index;
        facts.childCount = childCount;
        sd_bus_message_skip(reply, "as");
        const char *name = nullptr;
        sd_bus_message_read_basic(reply, SD_BUS_TYPE_STRING, static_cast<void *>(&name));
        uint32_t role = 0;
        sd_bus_message_read_basic(reply, SD_BUS_TYPE_UINT32, &role);
        facts.role = static_cast<AtspiRole>(role);
        // What else stands in the windows of applications is none of our business.
        if (name != nullptr && (isMenu(facts.role) || isMenuItem(facts.role)))
            facts.name = limitedText(name);
        sd_bus_message_skip(reply, "s");
        facts.states = readStates(reply);
        if (sd_bus_message_exit_container(reply) < 0)
            break;
        if (self)
            m_cache.insert(*self, facts);
    }
    linkCache();
}

void AtspiApplication::linkCache()
{
    std::vector<std::pair<int, QByteArray>> inOrder;
    inOrder.reserve(static_cast<size_t>(m_cache.size()));
    for (auto entry = m_cache.cbegin(); entry != m_cache.cend(); ++entry)
        inOrder.emplace_back(entry->index, entry.key());
    std::ranges::sort(inOrder);
    for (const auto &[index, path] : inOrder) {
        const auto parent = m_cache.find(known(path)->parent);
        if (parent != m_cache.end() && index >= 0)
            parent->children.push_back(path);
    }
}

const AtspiApplication::Facts *AtspiApplication::known(const QByteArray &path) const
{
    const auto found = m_cache.constFind(path);
    return found == m_cache.constEnd() ? nullptr : &*found;
}

void AtspiApplication::children(const QByteArray &path, const Handler<Children> &handler)
{
    const Facts *facts = known(path);
    if (facts != nullptr && facts->childCount == static_cast<int>(facts->children.size())) {
        m_bus.defer([handler, children = facts->children] { handler(children); });
        return;
    }
    m_bus.call(propertyCall(path, accessibleInterface, "ChildCount"),
               [this, path, handler](sd_bus_message *reply) {
                   int32_t count = 0;
                   if (reply == nullptr || sd_bus_message_read(reply, "v", "i", &count) <= 0 || count <= 0) {
                       handler({});
                       return;
                   }
                   if (count > maximumChildren) {
                       childrenByIndex(path, handler);
                       return;
                   }
                   m_bus.call({.destination = m_busName,
                               .path = path,
                               .interface = accessibleInterface,
                               .method = "GetChildren"},
                              [this, handler](sd_bus_message *list) {
                                  handler(list == nullptr ? Children() : readReferences(list));
                              });
               });
}

/// Children that are asked for one by one. Kept by the question that is under way.
struct AtspiApplication::Gathering
{
    QByteArray path;
    Handler<Children> handler;
    Children children;
};

void AtspiApplication::childrenByIndex(const QByteArray &path, const Handler<Children> &handler)
{
    askForChild(std::make_shared<Gathering>(Gathering{.path = path, .handler = handler, .children = {}}), 0);
}

void AtspiApplication::askForChild(const std::shared_ptr<Gathering> &gathering, int32_t index)
{
    // One after another: an application may claim such numbers of every object.
    m_bus.call({.destination = m_busName,
                .path = gathering->path,
                .interface = accessibleInterface,
                .method = "GetChildAtIndex",
                .arguments =
                    [index](sd_bus_message *call) {
                        sd_bus_message_append(call, "i", index);
                    }},
               [this, gathering, index](sd_bus_message *reply) {
                   if (reply != nullptr) {
                       if (auto child = readReference(reply))
                           gathering->children.push_back(std::move(*child));
                   }
                   if (reply != nullptr && index + 1 < maximumChildrenByIndex)
                       askForChild(gathering, index + 1);
                   else
                       gathering->handler(gathering->children);
               });
}

void AtspiApplication::role(const QByteArray &path, const Handler<std::optional<AtspiRole>> &handler)
{
    if (const Facts *facts = known(path)) {
        m_bus.defer([handler, role = facts->role] { handler(role); });
        return;
    }
    m_bus.call(
        {.destination = m_busName, .path = path, .interface = accessibleInterface, .method = "GetRole"},
        [handler](sd_bus_message *reply) {
            uint32_t role = 0;
            if (reply == nullptr || sd_bus_message_read_basic(reply, SD_BUS_TYPE_UINT32, &role) <= 0)
                handler(std::nullopt);
            else
                handler(static_cast<AtspiRole>(role));
        });
}

void AtspiApplication::name(const QByteArray &path, const Handler<QString> &handler)
{
    if (const Facts *facts = known(path)) {
        m_bus.defer([handler, name = facts->name] { handler(name); });
        return;
    }
    m_bus.call(propertyCall(path, accessibleInterface, "Name"), [handler](sd_bus_message *reply) {
        const bool isText =
            reply != nullptr && sd_bus_message_enter_container(reply, SD_BUS_TYPE_VARIANT, "s") > 0;
        handler(isText ? readText(reply) : QString());
    });
}

void AtspiApplication::states(const QByteArray &path, const Handler<AtspiStates> &handler)
{
    m_bus.call(
        {.destination = m_busName, .path = path, .interface = accessibleInterface, .method = "GetState"},
        [handler](sd_bus_message *reply) { handler(reply == nullptr ? AtspiStates() : readStates(reply)); });
}

void AtspiApplication::recentStates(const QByteArray &path, const Handler<AtspiStates> &handler)
{
    if (const Facts *facts = known(path))
        m_bus.defer([handler, states = facts->states] { handler(states); });
    else
        states(path, handler);
}

void AtspiApplication::keyBinding(const QByteArray &path, const Handler<QString> &handler)
{
    // Never GetActions: it takes Firefox down, and Qt leaves the binding out of it.
    m_bus.call({.destination = m_busName,
                .path = path,
                .interface = actionInterface,
                .method = "GetKeyBinding",
                .arguments =
                    [](sd_bus_message *call) {
                        sd_bus_message_append(call, "i", 0);
                    }},
               [handler](sd_bus_message *reply) { handler(reply == nullptr ? QString() : readText(reply)); });
}

void AtspiApplication::extents(const QByteArray &path, const Handler<QRect> &handler)
{
    m_bus.call({.destination = m_busName,
                .path = path,
                .interface = componentInterface,
                .method = "GetExtents",
                .arguments =
                    [](sd_bus_message *call) {
                        sd_bus_message_append(call, "u", screenCoordinates);
                    }},
               [handler](sd_bus_message *reply) {
                   int32_t x = 0;
                   int32_t y = 0;
                   int32_t width = 0;
                   int32_t height = 0;
                   const bool isRead =
                       reply != nullptr && sd_bus_message_read(reply, "(iiii)", &x, &y, &width, &height) > 0;
                   // What was never shown is said to be at the edge of the number range.
                   constexpr int32_t farthest = 1'000'000;
                   const bool isSane = isRead && std::abs(static_cast<int64_t>(x)) < farthest &&
                                       std::abs(static_cast<int64_t>(y)) < farthest && width >= 0 &&
                                       width < farthest && height >= 0 && height < farthest;
                   handler(isSane ? QRect(x, y, width, height) : QRect());
               });
}

void AtspiApplication::accessibleAt(const QByteArray &path, QPoint position,
                                    const Handler<std::optional<QByteArray>> &handler)
{
    m_bus.call({.destination = m_busName,
                .path = path,
                .interface = componentInterface,
                .method = "GetAccessibleAtPoint",
                .arguments =
                    [position](sd_bus_message *call) {
                        sd_bus_message_append(call, "iiu", position.x(), position.y(), screenCoordinates);
                    }},
               [this, handler](sd_bus_message *reply) {
                   handler(reply == nullptr ? std::nullopt : readReference(reply));
               });
}

BusCall AtspiApplication::propertyCall(const QByteArray &path, const char *interface,
                                       const char *property) const
{
    return {.destination = m_busName,
            .path = path,
            .interface = propertiesInterface,
            .method = "Get",
            .arguments = [interface, property](sd_bus_message *call) {
                sd_bus_message_append(call, "ss", interface, property);
            }};
}

std::optional<QByteArray> AtspiApplication::readReference(sd_bus_message *message) const
{
    const char *name = nullptr;
    const char *path = nullptr;
    if (sd_bus_message_read(message, "(so)", &name, &path) <= 0 || !isOwnObject(name, path))
        return std::nullopt;
    return QByteArray(path);
}

AtspiApplication::Children AtspiApplication::readReferences(sd_bus_message *message) const
{
    Children children;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(so)") <= 0)
        return children;
    const char *name = nullptr;
    const char *path = nullptr;
    while (children.size() < maximumChildren && sd_bus_message_read(message, "(so)", &name, &path) > 0) {
        if (isOwnObject(name, path))
            children.emplace_back(path);
    }
    return children;
}

bool AtspiApplication::isOwnObject(const char *busName, const char *path) const
{
    // Objects of other programs are none of this one's business, whatever it says.
    return m_busName == busName && std::strcmp(path, noObject) != 0 && std::strlen(path) <= maximumPathBytes;
}

} // namespace keyvora
