#include "vorn_std/log/ContextLogMessage.h"

#include <string>

#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornException.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

const wchar_t* orEmpty(const wchar_t* text) { return text != nullptr ? text : L""; }

}  // namespace

ContextLogMessage::ContextLogMessage(const wchar_t* function, LogEventPriority priority,
                                     const wchar_t* module, const wchar_t* file,
                                     unsigned int line)
    : function(function), module(module), priority(priority), file(file), line(line) {}

void ContextLogMessage::log(const wchar_t* format, ...) const {
    va_list args;
    va_start(args, format);
    logVA(priority, function, module, L"", Thread::getCurrentThreadId(), file, line, format, args);
    va_end(args);
}

void ContextLogMessage::log(LogEventPriority priority, const wchar_t* function,
                            const wchar_t* module, const wchar_t* errorId,
                            unsigned long long threadId, const wchar_t* file, unsigned int line,
                            const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    logVA(priority, function, module, errorId, threadId, file, line, format, args);
    va_end(args);
}

void ContextLogMessage::logVA(LogEventPriority priority, const wchar_t* function,
                              const wchar_t* module, const wchar_t* errorId,
                              unsigned long long threadId, const wchar_t* file,
                              unsigned int line, const wchar_t* format, va_list args) {
    std::wstring message;
    try {
        StringUtils::sprintfStringAppendVA(message, args, format);
    } catch (const VornException& e) {
        message = e.getMessage();
    }
    StaticLog::log(priority, orEmpty(function), message, orEmpty(module), orEmpty(errorId),
                   threadId, orEmpty(file), line);
}

}  // namespace vorn_std
