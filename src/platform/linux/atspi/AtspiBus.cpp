// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/AtspiBus.h"

#include "platform/linux/atspi/BusPipeline.h"

#include <systemd/sd-bus.h>

namespace keyvora {

namespace {

constexpr const char *launcherName = "org.a11y.Bus";
constexpr const char *launcherPath = "/org/a11y/bus";
constexpr const char *registryName = "org.a11y.atspi.Registry";
constexpr const char *statusInterface = "org.a11y.Status";
constexpr qsizetype maximumApplications = 1000;

} // namespace

std::optional<QByteArray> accessibilityBusAddress(BusPipeline &session)
{
    std::optional<QByteArray> address;
    session.call({.destination = launcherName,
                  .path = launcherPath,
                  .interface = launcherName,
                  .method = "GetAddress"},
                 [&address](sd_bus_message *reply) {
                     const char *text = nullptr;
                     if (reply != nullptr && sd_bus_message_read(reply, "s", &text) > 0 && *text != '\0')
                         address = QByteArray(text);
                 });
    session.run();
    return address;
}

bool isAccessibilityEnabled(BusPipeline &session)
{
    int isEnabled = 0;
    session.call({.destination = launcherName,
                  .path = launcherPath,
                  .interface = propertiesInterface,
                  .method = "Get",
                  .arguments =
                      [](sd_bus_message *call) {
                          sd_bus_message_append(call, "ss", statusInterface, "IsEnabled");
                      }},
                 [&isEnabled](sd_bus_message *reply) {
                     if (reply != nullptr)
                         sd_bus_message_read(reply, "v", "b", &isEnabled);
                 });
    session.run();
    return isEnabled != 0;
}

bool enableAccessibility(BusPipeline &session)
{
    session.call({.destination = launcherName,
                  .path = launcherPath,
                  .interface = propertiesInterface,
                  .method = "Set",
                  .arguments =
                      [](sd_bus_message *call) {
                          sd_bus_message_append(call, "ssv", statusInterface, "IsEnabled", "b", 1);
                      }},
                 [](sd_bus_message *) {});
    return session.run() && isAccessibilityEnabled(session);
}

bool responds(BusPipeline &bus)
{
    bool hasAnswered = false;
    bus.call({.destination = "org.freedesktop.DBus",
              .path = "/org/freedesktop/DBus",
              .interface = "org.freedesktop.DBus",
              .method = "GetId"},
             [&hasAnswered](sd_bus_message *reply) { hasAnswered = reply != nullptr; });
    return bus.run() && hasAnswered;
}

QList<QByteArray> busNamesOfProcess(BusPipeline &accessibilityBus, qint32 pid)
{
    QList<QByteArray> registered;
    accessibilityBus.call({.destination = registryName,
                           .path = "/org/a11y/atspi/accessible/root",
                           .interface = "org.a11y.atspi.Accessible",
                           .method = "GetChildren"},
                          [&registered](sd_bus_message *reply) {
                              if (reply == nullptr ||
                                  sd_bus_message_enter_container(reply, SD_BUS_TYPE_ARRAY, "(so)") <= 0)
                                  return;
                              const char *name = nullptr;
                              while (registered.size() < maximumApplications &&
                                     sd_bus_message_read(reply, "(so)", &name, nullptr) > 0)
                                  registered.append(name);
                          });
    accessibilityBus.run();

    QList<QByteArray> names;
    for (const QByteArray &name : registered) {
        accessibilityBus.call({.destination = "org.freedesktop.DBus",
                               .path = "/org/freedesktop/DBus",
                               .interface = "org.freedesktop.DBus",
                               .method = "GetConnectionUnixProcessID",
                               .arguments =
                                   [&name](sd_bus_message *call) {
                                       sd_bus_message_append(call, "s", name.constData());
                                   }},
                              [&names, &name, pid](sd_bus_message *reply) {
                                  uint32_t owner = 0;
                                  if (reply != nullptr && sd_bus_message_read(reply, "u", &owner) > 0 &&
                                      owner == static_cast<uint32_t>(pid) && !names.contains(name))
                                      names.append(name);
                              });
    }
    accessibilityBus.run();
    return names;
}

void wakeCaches(BusPipeline &accessibilityBus)
{
    accessibilityBus.call({.destination = registryName,
                           .path = "/org/a11y/atspi/registry",
                           .interface = registryName,
                           .method = "RegisterEvent",
                           .arguments =
                               [](sd_bus_message *call) {
                                   // An event that hardly ever happens.
                                   sd_bus_message_append(call, "s", "object:announcement");
                                   sd_bus_message_append(call, "as", 0);
                                   sd_bus_message_append(call, "s", "");
                               }},
                          [](sd_bus_message *) {});
}

} // namespace keyvora
