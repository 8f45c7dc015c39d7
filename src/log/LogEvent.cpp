#include "vorn_std/log/LogEvent.h"

#include <ctime>

#include "internal/ReusedLogEvent.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {
constexpr unsigned int NoLine = 0xFFFFFFFFu;
}

LogEvent::LogEvent() : LogEvent(DUMP) {}

LogEvent::LogEvent(LogEventPriority priority)
    : time{}, priority(priority), threadId(Thread::InvalidThreadID), lineNumber(NoLine) {
    setTime();
}

LogEvent::LogEvent(const LogEvent& other) : LogEvent() { copy(other); }

LogEvent& LogEvent::operator=(const LogEvent& other) {
    if (this != &other) {
        copy(other);
    }
    return *this;
}

LogEvent::~LogEvent() = default;

void LogEvent::setTime() {
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    setTime(now.tv_sec, static_cast<uint16_t>(now.tv_nsec / 1000000));
}

// The zone fields are those the process's last tzset() left, as _ftime gave them.
void LogEvent::setTime(int64_t seconds, uint16_t milliseconds) {
    time.seconds = seconds;
    time.milliseconds = milliseconds;
    time.timezone = static_cast<int16_t>(::timezone / 60);
    time.daylight = static_cast<int16_t>(::daylight);
}

void LogEvent::reset(LogEventPriority newPriority) {
    priority = newPriority;
    errorId.clear();
    threadId = Thread::InvalidThreadID;
    module.clear();
    fileName.clear();
    lineNumber = NoLine;
    function.clear();
    message.clear();
    setTime();
}

void LogEvent::copy(const LogEvent& other) {
    time = other.time;
    priority = other.priority;
    errorId = other.errorId;
    threadId = other.threadId;
    fileName = other.fileName;
    lineNumber = other.lineNumber;
    function = other.function;
    message = other.message;
}

}  // namespace vorn_std

namespace vorn_std_internal {

namespace {

struct EventPool {
    std::vector<std::unique_ptr<vorn_std::LogEvent>> events;
    size_t inUse = 0;
};

EventPool& pool() {
    thread_local EventPool threadPool;
    return threadPool;
}

}  // namespace

ReusedLogEvent::ReusedLogEvent(vorn_std::LogEventPriority priority) {
    EventPool& events = pool();
    if (events.inUse == events.events.size()) {
        events.events.push_back(std::make_unique<vorn_std::LogEvent>(priority));
    } else {
        events.events[events.inUse]->reset(priority);
    }
    current = events.events[events.inUse++].get();
}

ReusedLogEvent::~ReusedLogEvent() { --pool().inUse; }

}  // namespace vorn_std_internal
