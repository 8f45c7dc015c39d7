#pragma once

#include <memory>
#include <vector>

// <sys/wait.h> defines WAIT_ANY as a macro for waitpid(), which would turn
// Concurrency::WAIT_ANY into nonsense in any file that also includes it (the
// test frameworks do). Including it once here, before taking the name back,
// keeps later includes from defining it again; waitpid() callers pass -1.
#include <sys/wait.h>
#undef WAIT_ANY

#include "vorn_std/base/Export.h"

namespace vorn_std {

class Subscription;
class TimeSpec;
class Waitable;

// Win32-style waits on Waitables, from any thread. Timeouts are milliseconds
// with 32-bit meaning: negative waits for ever, 0 polls. Deadlines run on the
// monotonic clock: a change of the wall clock never shortens or stretches a
// wait, and a positive timeout always expires. A spurious wake-up never ends
// a wait early.
//
// Each object may stand once in a vector. Waiting on a Lock or a Semaphore
// acquires neither. Destroying an awaited object raises
// VornWaitObjectDestroyedException "Object [i] was destroyed!" in the waiter,
// unless an object at a lower index was signalled.
class VORNSTD_API Concurrency {
public:
    enum WaitType { WAIT_ANY = 0, WAIT_ALL = 1 };

    Concurrency() = delete;

    // 0 if signalled, -1 on timeout.
    static int waitForSingleObject(Waitable& object, long timeoutMs);
    // WAIT_ANY: the lowest signalled index, or -1. Every auto-reset object
    // that fires meanwhile spends its signal on this wait, though only the
    // lowest index is told.
    // WAIT_ALL (any type other than 0): 0 once every object has been
    // signalled, -1 on timeout. Not atomic: each signal is consumed as it
    // arrives and stays consumed if the wait then times out.
    static int waitForMultipleObjects(const std::vector<Waitable*>& objects, WaitType type,
                                      long timeoutMs);

private:
    using Subscriptions = std::vector<std::unique_ptr<Subscription>>;

    static int waitForAny(const std::vector<Waitable*>& objects, long timeoutMs);
    static int waitForAll(const std::vector<Waitable*>& objects, long timeoutMs);
    static TimeSpec getWaitTime(long timeoutMs);
    static int getWaitResult(const Subscriptions& subscriptions);
};

}  // namespace vorn_std
