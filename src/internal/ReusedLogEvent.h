#pragma once

#include <memory>
#include <vector>

#include "vorn_std/log/LogEvent.h"

namespace vorn_std_internal {

// The event of one logger call, drawn from a per-thread pool so that its
// strings keep their storage from one statement to the next. A statement made
// inside an appender (on the same thread) draws the next event of the pool,
// never the one still in use. Each draw is a fresh event: priority and time
// set, every other field at its default.
class ReusedLogEvent {
public:
    explicit ReusedLogEvent(vorn_std::LogEventPriority priority);
    ~ReusedLogEvent();
    ReusedLogEvent(const ReusedLogEvent&) = delete;
    ReusedLogEvent& operator=(const ReusedLogEvent&) = delete;

    vorn_std::LogEvent& event() { return *current; }

private:
    vorn_std::LogEvent* current;
};

}  // namespace vorn_std_internal
