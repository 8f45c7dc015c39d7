#include "internal/Deadline.h"

#include <cstdint>
#include <ctime>

namespace vorn_std_internal {

namespace {

vorn_std::TimeSpec monotonicNow() {
    struct timespec now {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return vorn_std::TimeSpec(now.tv_sec, now.tv_nsec);
}

}  // namespace

vorn_std::TimeSpec deadlineAfter(long timeoutMs) {
    const int32_t timeout = static_cast<int32_t>(timeoutMs);
    if (timeout < 0) {
        return vorn_std::TimeSpec(-1, 0);
    }
    vorn_std::TimeSpec deadline = monotonicNow();
    deadline.addMilliseconds(timeout);
    return deadline;
}

bool deadlinePassed(const vorn_std::TimeSpec& deadline) {
    if (deadline.getSeconds() < 0) {
        return false;
    }
    const vorn_std::TimeSpec now = monotonicNow();
    return now.getSeconds() > deadline.getSeconds() ||
           (now.getSeconds() == deadline.getSeconds() &&
            now.getNanoseconds() >= deadline.getNanoseconds());
}

}  // namespace vorn_std_internal
