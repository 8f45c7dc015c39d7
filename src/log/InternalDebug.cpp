#include "vorn_std/log/InternalDebug.h"

#include "vorn_std/log/ContextLogMessage.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* LibraryModule = L"VornStd";

void logLibraryStatement(LogEventPriority priority, const wchar_t* function, const wchar_t* file,
                         unsigned int line, const wchar_t* format, va_list args) {
    ContextLogMessage::logVA(priority, function, LibraryModule, L"", Thread::getCurrentThreadId(),
                             file, line, format, args);
}

}  // namespace

#define VORN_DEFINE_ENTRY_POINT(NAME, PRIORITY)                                              \
    void NAME(const wchar_t* function, const wchar_t* file, unsigned int line,               \
              const wchar_t* format, ...) {                                                  \
        va_list args;                                                                        \
        va_start(args, format);                                                              \
        logLibraryStatement(PRIORITY, function, file, line, format, args);                   \
        va_end(args);                                                                        \
    }

VORN_DEFINE_ENTRY_POINT(__internal_debug, DEBUG)
VORN_DEFINE_ENTRY_POINT(__internal_call, CALL)
VORN_DEFINE_ENTRY_POINT(__internal_trace, TRACE)
VORN_DEFINE_ENTRY_POINT(__internal_dump, DUMP)

#undef VORN_DEFINE_ENTRY_POINT

}  // namespace vorn_std
