#pragma once

#include <cstdarg>

#include "vorn_std/base/Export.h"
#include "vorn_std/log/LogEventPriority.h"

namespace vorn_std {

// The general entry into the log pipeline. The static functions format and
// hand the text to StaticLog::log; they do not test the threshold, the caller
// has. A formatting failure does not lose the statement: its text becomes the
// failure's message.
class VORNSTD_API ContextLogMessage {
public:
    // The strings are not owned and must outlive the object.
    ContextLogMessage(const wchar_t* function, LogEventPriority priority, const wchar_t* module,
                      const wchar_t* file, unsigned int line);

    // With an empty error id and the calling thread's id.
    void log(const wchar_t* format, ...) const;

    static void log(LogEventPriority priority, const wchar_t* function, const wchar_t* module,
                    const wchar_t* errorId, unsigned long long threadId, const wchar_t* file,
                    unsigned int line, const wchar_t* format, ...);
    static void logVA(LogEventPriority priority, const wchar_t* function, const wchar_t* module,
                      const wchar_t* errorId, unsigned long long threadId, const wchar_t* file,
                      unsigned int line, const wchar_t* format, va_list args);

private:
    const wchar_t* function;
    const wchar_t* module;
    LogEventPriority priority;
    const wchar_t* file;
    unsigned int line;
};

}  // namespace vorn_std
