// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/StopSignal.h"

#include <sys/eventfd.h>
#include <unistd.h>

namespace keyvora {

StopSignal::StopSignal()
    : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

StopSignal::~StopSignal()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void StopSignal::stop()
{
    m_isStopped = true;
    if (m_descriptor >= 0)
        eventfd_write(m_descriptor, 1);
}

} // namespace keyvora
