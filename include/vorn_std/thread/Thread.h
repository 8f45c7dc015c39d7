#pragma once

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Thread identity, needed by log statements and locks before any Thread
// object exists.
class VORNSTD_API Thread {
public:
    static constexpr unsigned long long InvalidThreadID = 0x00000000FFFFFFFFULL;

    // The operating system's numeric id of the calling thread; the same value
    // on every call from one thread. Lock-free after the thread's first call.
    static unsigned long long getCurrentThreadId();
};

// Empties the process-wide table of thread ids, for the host; nothing in the
// library calls it.
VORNSTD_API void clearThreadIdMap();

}  // namespace vorn_std
