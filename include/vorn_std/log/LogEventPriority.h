#pragma once

#include <cstdint>
#include <string>

#include "vorn_std/base/Export.h"

namespace vorn_std {

// Lower is more verbose. Below INFO are the debug priorities, which decide
// which file a line goes to.
enum LogEventPriority : int32_t {
    DUMP = 0,
    TRACE = 1,
    CALL = 2,
    DEBUG = 3,
    INFO = 4,
    WARN = 5,
    ERROR = 6,
    FATAL = 7
};

// "DUMP" ... "FATAL"; any other value gives "Invalid Priority Specified".
VORNSTD_API std::wstring logEventPriorityToString(LogEventPriority priority);
// Exact, case-sensitive match of a name; anything else gives defaultValue.
VORNSTD_API LogEventPriority logEventPriorityFromString(const std::wstring& text,
                                                        LogEventPriority defaultValue);
VORNSTD_API bool isDebugEventPriority(LogEventPriority priority);

}  // namespace vorn_std
