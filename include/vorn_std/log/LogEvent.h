#pragma once

#include <cstdint>
#include <string>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std_internal {
class ReusedLogEvent;
}

namespace vorn_std {

// One statement on its way to the appenders. Lives on the stack of the
// logger that made it; the time is taken at construction.
class VORNSTD_API LogEvent {
public:
    struct Time {
        int64_t seconds;         // since the epoch
        uint16_t milliseconds;
        int16_t timezone;        // minutes west of UTC
        int16_t daylight;        // non-zero where the zone has daylight saving
    };

    LogEvent();
    explicit LogEvent(LogEventPriority priority);
    // Copies every field but the module.
    LogEvent(const LogEvent& other);
    LogEvent& operator=(const LogEvent& other);
    virtual ~LogEvent();

    const Time& getTime() const { return time; }
    LogEventPriority getPriority() const { return priority; }
    const std::wstring& getErrorId() const { return errorId; }
    unsigned long long getThreadId() const { return threadId; }
    const std::wstring& getModule() const { return module; }
    const std::wstring& getFileName() const { return fileName; }
    unsigned int getLineNumber() const { return lineNumber; }
    const std::wstring& getFunction() const { return function; }
    const std::wstring& getMessage() const { return message; }

    void setPriority(LogEventPriority value) { priority = value; }
    void setErrorId(const std::wstring& value) { errorId = value; }
    void setThreadId(unsigned long long value) { threadId = value; }
    void setModule(const std::wstring& value) { module = value; }
    void setFileName(const std::wstring& value) { fileName = value; }
    void setLineNumber(unsigned int value) { lineNumber = value; }
    void setFunction(const std::wstring& value) { function = value; }
    void setMessage(const std::wstring& value) { message = value; }
    // For events made elsewhere (tests, replays): the time of the event.
    void setTime(int64_t seconds, uint16_t milliseconds);

private:
    friend class vorn_std_internal::ReusedLogEvent;

    void setTime();
    void copy(const LogEvent& other);
    // Back to a fresh event of this priority, keeping the strings' storage.
    void reset(LogEventPriority newPriority);

    Time time;
    LogEventPriority priority;
    std::wstring errorId;
    unsigned long long threadId;
    std::wstring module;
    std::wstring fileName;
    unsigned int lineNumber;
    std::wstring function;
    std::wstring message;
};

}  // namespace vorn_std
