// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <chrono>
#include <deque>
#include <functional>
#include <list>
#include <memory>

struct sd_bus;
struct sd_bus_message;

namespace keyvora {

/// The interface over which an object of a bus tells its properties.
inline constexpr const char *propertiesInterface = "org.freedesktop.DBus.Properties";

class StopSignal;

/// How long other programs may take.
struct BusPatience
{
    /// Without any reply at all while calls are outstanding; who is silent for longer is taken for dead.
    std::chrono::milliseconds silence{1500};
    /// All together, from the first call on.
    std::chrono::milliseconds total{10'000};
};

/// A method of an object on a bus, with its arguments.
struct BusCall
{
    /// Appends the arguments; absent for none.
    using Arguments = std::function<void(sd_bus_message *call)>;

    QByteArray destination;
    QByteArray path;
    const char *interface = nullptr;
    const char *method = nullptr;
    Arguments arguments = {};
};

/// A D-Bus connection whose calls overlap: many are on their way at a time, so that a tree of thousands of
/// small answers comes in a tenth of the time. For worker threads; everything happens inside `run`.
class BusPipeline
{
public:
    /// Receives the reply, or null when the call failed. Valid during the call only.
    using ReplyHandler = std::function<void(sd_bus_message *reply)>;

    /// The bus of the user's session. Null where there is none.
    static std::unique_ptr<BusPipeline> toSession(const StopSignal &stop, BusPatience patience = {});
    /// A bus by its address.
    static std::unique_ptr<BusPipeline> toAddress(const QByteArray &address, const StopSignal &stop,
                                                  BusPatience patience = {});
    ~BusPipeline();

    /// Asks when there is room. The handler may make further calls.
    void call(BusCall call, ReplyHandler handler);

    /// Calls the handler from within `run`, as if it were the reply to a call.
    void defer(std::function<void()> handler);

    /// Works until all calls are answered. False when it gave up: the other side was silent or took too long
    /// in all, the bus went away, or `stop` came. Handlers of calls that are unanswered then are never
    /// called.
    bool run();

    /// How many calls were made.
    [[nodiscard]] int callCount() const { return m_callCount; }

private:
    using Clock = std::chrono::steady_clock;

    struct Waiting
    {
        BusCall call;
        ReplyHandler handler;
    };
    struct Outstanding
    {
        BusPipeline *pipeline = nullptr;
        ReplyHandler handler;
        std::list<Outstanding>::iterator self;
    };

    BusPipeline(sd_bus *bus, const StopSignal &stop, BusPatience patience);
    static void receive(sd_bus_message *reply, Outstanding &outstanding);
    void send(Waiting waiting);
    bool process();
    bool waitForBus();
    void giveUp();

    sd_bus *m_bus;
    const StopSignal &m_stop;
    BusPatience m_patience;
    std::deque<Waiting> m_waiting;
    std::deque<std::function<void()>> m_deferred;
    std::list<Outstanding> m_outstanding;
    Clock::time_point m_start;
    Clock::time_point m_lastReply;
    int m_callCount = 0;
    bool m_hasGivenUp = false;
};

} // namespace keyvora
