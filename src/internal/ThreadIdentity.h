#pragma once

#include <pthread.h>

#include "vorn_std/base/Export.h"

namespace vorn_std_internal {

// The operating system's numeric id of the calling thread (uncached).
unsigned long long currentOsThreadId();

// Process-wide table from thread handle to numeric id. Made on first use and
// never freed, so it outlives every static destructor. A thread's entry is
// removed when the thread ends: handles are reused at once by the system.
class VORNSTD_API ThreadIdMap {
public:
    static ThreadIdMap& getInstance();

    // Thread::InvalidThreadID for the invalid handle (0) and for a thread
    // that is not (or no longer) known.
    unsigned long long getThreadId(pthread_t handle);
    // Records the calling thread; returns its id.
    unsigned long long registerCurrentThread();
    void forget(pthread_t handle);
    void clear();

private:
    ThreadIdMap();
    struct State;
    State* state;
};

}  // namespace vorn_std_internal
