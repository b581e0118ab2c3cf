// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// Reads the menu bar of an application (its process id is the argument) as the program does, from opening the
// connection on, then makes as many bare calls to the same application, as many at a time, and throws the
// answers away. Prints for each run: milliseconds of the reading, milliseconds of the bare calls, number of
// calls, number of entries and of entries with a key.

#include "platform/linux/atspi/AtspiAccessibility.h"
#include "platform/linux/atspi/AtspiApplication.h"
#include "platform/linux/atspi/AtspiBus.h"
#include "platform/linux/atspi/MenuBarSearch.h"
#include "platform/linux/atspi/MenuTreeReader.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace keyvora;

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

struct Facts
{
    QByteArray busName;
    int calls = 0;
    bool usesCache = false;
};

/// How many calls one reading takes.
Facts measureCalls(BusPipeline &bus, qint32 pid)
{
    wakeCaches(bus);
    const QByteArray name = busNamesOfProcess(bus, pid).value(0);
    AtspiApplication application(bus, name);
    application.loadCache();
    bus.run();
    MenuBarSearch search(bus, application);
    search.run();
    if (const auto bar = search.best())
        static_cast<void>(MenuTreeReader(bus, application).read(*bar));
    return {.busName = name, .calls = bus.callCount(), .usesCache = application.isGtk()};
}

std::unique_ptr<BusPipeline> openBus(const StopSignal &stop)
{
    const auto session = BusPipeline::toSession(stop);
    const auto address = accessibilityBusAddress(*session);
    return BusPipeline::toAddress(*address, stop);
}

/// The same number of calls, the bulk one among them where it was used.
double bareCalls(const StopSignal &stop, const Facts &facts)
{
    const auto bus = openBus(stop);
    wakeCaches(*bus);
    bus->run();
    const auto start = Clock::now();
    for (int i = 0; i < facts.calls; ++i) {
        const bool isBulk = i == 0 && facts.usesCache;
        bus->call({.destination = facts.busName,
                   .path = isBulk ? QByteArray("/org/a11y/atspi/cache") : atspiRootPath,
                   .interface = isBulk ? "org.a11y.atspi.Cache" : "org.a11y.atspi.Accessible",
                   .method = isBulk ? "GetItems" : "GetRole"},
                  [](sd_bus_message *) {});
    }
    bus->run();
    return millisecondsSince(start);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc < 2)
        return 2;
    const auto pid = static_cast<qint32>(std::strtol(argv[1], nullptr, 10));
    constexpr int runs = 9;
    const StopSignal stop;
    const auto bus = openBus(stop);
    const Facts facts = measureCalls(*bus, pid);
    AtspiAccessibility accessibility({});
    for (int run = 0; run < runs; ++run) {
        const auto start = Clock::now();
        const auto tree = accessibility.menuBar(pid).result();
        const double reading = millisecondsSince(start);
        if (!tree)
            return 1;
        const auto entries = std::ranges::count_if(tree->elements, [](const MenuElement &element) {
            return !element.title.isEmpty() && element.children.empty();
        });
        const auto keys = std::ranges::count_if(
            tree->elements, [](const MenuElement &element) { return !element.commandCharacter.isEmpty(); });
        std::printf("%.2f %.2f %d %td %td\n", reading, bareCalls(stop, facts), facts.calls, entries, keys);
    }
    return 0;
}
