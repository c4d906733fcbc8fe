// What the host heap has handed out and taken back: every block of acHeapAlloc (and so of
// the host-heap operator new that every runtime object has) and every block given back
// through acHeapFree. Tests read the counts to see where an object's memory comes from.
#pragma once

#include <cstdint>

#include "adesk.h"

namespace headless {

struct HostHeapCounts {
    std::uint64_t allocations = 0;  // blocks handed out
    std::uint64_t frees = 0;        // blocks given back (freeing null counts for nothing)
};

// The counts since the process started.
ACHOST_API HostHeapCounts hostHeapCounts();

}  // namespace headless
