#pragma once

#include <pthread.h>

namespace vorn_std_internal {

// Keeps the calling thread from being cancelled for the length of a scope:
// a cancellation inside a log write would unwind through the library's locks.
class CancellationGuard {
public:
    CancellationGuard() { pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &previous); }
    ~CancellationGuard() { pthread_setcancelstate(previous, nullptr); }
    CancellationGuard(const CancellationGuard&) = delete;
    CancellationGuard& operator=(const CancellationGuard&) = delete;

private:
    int previous = PTHREAD_CANCEL_ENABLE;
};

}  // namespace vorn_std_internal
