// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace keyvora {

struct XcbFree
{
    void operator()(void *data) const { std::free(data); }
};

/// A reply, an event or an error of the X server, freed with its owner.
template <typename Data>
using XcbOwned = std::unique_ptr<Data, XcbFree>;

/// The type of an event (`XCB_…_NOTIFY` and the like), whether it is the server's own or was sent by a
/// program.
inline uint8_t typeOf(const xcb_generic_event_t &event)
{
    constexpr uint8_t sentByProgramBit = 0x80;
    return static_cast<uint8_t>(event.response_type & ~sentByProgramBit);
}

} // namespace keyvora
