// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/BusPipeline.h"

#include "platform/linux/atspi/StopSignal.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <poll.h>
#include <systemd/sd-bus.h>
#include <utility>

namespace keyvora {

namespace {

/// More on their way at a time gains nothing: the other program is the bottleneck.
constexpr size_t maximumOutstanding = 64;

sd_bus *start(sd_bus *bus)
{
    // We speak when we want to; a bus that asks for more is none.
    if (sd_bus_set_bus_client(bus, 1) < 0 || sd_bus_start(bus) < 0)
        return sd_bus_unref(bus);
    return bus;
}

} // namespace

std::unique_ptr<BusPipeline> BusPipeline::toSession(const StopSignal &stop, BusPatience patience)
{
    sd_bus *bus = nullptr;
    if (sd_bus_open_user(&bus) < 0)
        return nullptr;
    return std::unique_ptr<BusPipeline>(new BusPipeline(bus, stop, patience));
}

std::unique_ptr<BusPipeline> BusPipeline::toAddress(const QByteArray &address, const StopSignal &stop,
                                                    BusPatience patience)
{
    // Other kinds of address start programs or look hosts up.
    const QList<QByteArray> ways = address.split(';');
    if (!std::ranges::all_of(ways,
                             [](const QByteArray &way) { return way.isEmpty() || way.startsWith("unix:"); }))
        return nullptr;
    sd_bus *bus = nullptr;
    if (sd_bus_new(&bus) < 0)
        return nullptr;
    if (sd_bus_set_address(bus, address.constData()) < 0) {
        sd_bus_unref(bus);
        return nullptr;
    }
    bus = start(bus);
    return bus == nullptr ? nullptr : std::unique_ptr<BusPipeline>(new BusPipeline(bus, stop, patience));
}

BusPipeline::BusPipeline(sd_bus *bus, const StopSignal &stop, BusPatience patience)
    : m_bus(bus)
    , m_stop(stop)
    , m_patience(patience)
    , m_start(Clock::now())
    , m_lastReply(m_start)
{
}

BusPipeline::~BusPipeline()
{
    sd_bus_close_unref(m_bus);
}

void BusPipeline::call(BusCall call, ReplyHandler handler)
{
    if (m_hasGivenUp)
        return;
    Waiting waiting{std::move(call), std::move(handler)};
    if (m_outstanding.size() < maximumOutstanding && m_waiting.empty())
        send(std::move(waiting));
    else
        m_waiting.push_back(std::move(waiting));
}

void BusPipeline::defer(std::function<void()> handler)
{
    if (!m_hasGivenUp)
        m_deferred.push_back(std::move(handler));
}

void BusPipeline::send(Waiting waiting)
{
    if (m_outstanding.empty())
        m_lastReply = Clock::now();
    m_outstanding.push_back({.pipeline = this, .handler = std::move(waiting.handler), .self = {}});
    const auto outstanding = std::prev(m_outstanding.end());
    outstanding->self = outstanding;
    const BusCall &call = waiting.call;
    sd_bus_message *message = nullptr;
    int result = sd_bus_message_new_method_call(m_bus, &message, call.destination.constData(),
                                                call.path.constData(), call.interface, call.method);
    if (result >= 0) {
        if (call.arguments)
            call.arguments(message);
        const std::chrono::microseconds timeout = m_patience.total;
        const auto received = [](sd_bus_message *reply, void *data, sd_bus_error * /*error*/) {
            receive(reply, *static_cast<Outstanding *>(data));
            return 0;
        };
        result = sd_bus_call_async(m_bus, nullptr, message, received, &*outstanding,
                                   static_cast<uint64_t>(timeout.count()));
    }
    sd_bus_message_unref(message);
    ++m_callCount;
    if (result < 0) {
        const ReplyHandler handler = std::move(outstanding->handler);
        m_outstanding.erase(outstanding);
        handler(nullptr);
    }
}

void BusPipeline::receive(sd_bus_message *reply, Outstanding &outstanding)
{
    BusPipeline *self = outstanding.pipeline;
    const ReplyHandler handler = std::move(outstanding.handler);
    self->m_outstanding.erase(outstanding.self);
    self->m_lastReply = Clock::now();
    handler(sd_bus_message_is_method_error(reply, nullptr) != 0 ? nullptr : reply);
}

bool BusPipeline::run()
{
    while (!m_hasGivenUp) {
        while (!m_deferred.empty()) {
            const std::function<void()> next = std::move(m_deferred.front());
            m_deferred.pop_front();
            next();
        }
        while (!m_waiting.empty() && m_outstanding.size() < maximumOutstanding) {
            Waiting next = std::move(m_waiting.front());
            m_waiting.pop_front();
            send(std::move(next));
        }
        if (!m_deferred.empty())
            continue;
        if (m_outstanding.empty() && m_waiting.empty())
            return true;
        if (!process() || m_stop.isStopped())
            giveUp();
    }
    return false;
}

bool BusPipeline::process()
{
    const int result = sd_bus_process(m_bus, nullptr);
    if (result < 0)
        return false;
    if (result > 0) {
        const bool isInTime = Clock::now() - m_start < m_patience.total;
        return isInTime;
    }
    return waitForBus();
}

bool BusPipeline::waitForBus()
{
    const Clock::time_point end = std::min(m_start + m_patience.total, m_lastReply + m_patience.silence);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    const int events = sd_bus_get_events(m_bus);
    if (left.count() <= 0 || events < 0)
        return false;
    std::array<pollfd, 2> descriptors{
        pollfd{.fd = sd_bus_get_fd(m_bus), .events = static_cast<short>(events), .revents = 0},
        pollfd{.fd = m_stop.descriptor(), .events = POLLIN, .revents = 0},
    };
    const int result = poll(descriptors.data(), descriptors.size(), static_cast<int>(left.count()));
    return result >= 0 || errno == EINTR;
}

void BusPipeline::giveUp()
{
    m_hasGivenUp = true;
    m_waiting.clear();
    m_deferred.clear();
}

} // namespace keyvora
