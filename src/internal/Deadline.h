#pragma once

#include "vorn_std/thread/TimeSpec.h"

namespace vorn_std_internal {

// The one place where a millisecond timeout becomes an absolute deadline on
// the monotonic clock. The timeout has 32-bit meaning (0xFFFFFFFF waits for
// ever); negative gives seconds -1, the mark of an unlimited wait.
vorn_std::TimeSpec deadlineAfter(long timeoutMs);

// True once the monotonic clock has reached the deadline (never for an
// unlimited one).
bool deadlinePassed(const vorn_std::TimeSpec& deadline);

}  // namespace vorn_std_internal
