// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/UnusedMemory.h"

#include <cstddef>
#include <cstdint>
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace keyvora {

namespace {

/// Only what no process can have written to equals the file, and may be read from it again.
bool isNeverWritten(const ElfW(Phdr) & segment)
{
    return segment.p_type == PT_LOAD && (segment.p_flags & PF_W) == 0;
}

int unmapPages(dl_phdr_info *library, [[maybe_unused]] size_t size, [[maybe_unused]] void *data)
{
    const auto pageMask = static_cast<uintptr_t>(sysconf(_SC_PAGESIZE)) - 1;
    for (int i = 0; i < library->dlpi_phnum; ++i) {
        const ElfW(Phdr) &segment = library->dlpi_phdr[i];
        if (!isNeverWritten(segment))
            continue;
        const uintptr_t begin = library->dlpi_addr + segment.p_vaddr;
        const uintptr_t end = begin + segment.p_memsz;
        const uintptr_t firstPage = begin & ~pageMask;
        // The kernel refuses what it cannot part with, such as memory that is locked.
        static_cast<void>(
            madvise(reinterpret_cast<void *>(firstPage), end - firstPage, MADV_DONTNEED)); // NOLINT
    }
    return 0;
}

} // namespace

void returnUnusedMemory()
{
    malloc_trim(0);
    dl_iterate_phdr(&unmapPages, nullptr);
}

} // namespace keyvora
