#include "vorn_std/base/LogFunctionCall.h"

#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornException.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* BeginText = L"Begin.";
constexpr const wchar_t* EndText = L"End.";
constexpr const wchar_t* FormatErrorText = L"Error formatting message: %ls.";
constexpr const wchar_t* LibraryModule = L"VornStd";

std::wstring orEmpty(const wchar_t* text) { return text != nullptr ? text : L""; }

}  // namespace

LogFunctionCall::LogFunctionCall(const wchar_t* function, const wchar_t* module,
                                 const wchar_t* file, unsigned int line,
                                 LogEventPriority priority, bool logBegin)
    : function(orEmpty(function)),
      module(orEmpty(module)),
      file(orEmpty(file)),
      line(line),
      priority(priority) {
    if (logBegin && StaticLog::isThresholdOn(priority)) {
        write(BeginText);
    }
}

LogFunctionCall::LogFunctionCall(const wchar_t* function, const wchar_t* module,
                                 const wchar_t* file, unsigned int line,
                                 LogEventPriority priority, const wchar_t* format, ...)
    : function(orEmpty(function)),
      module(orEmpty(module)),
      file(orEmpty(file)),
      line(line),
      priority(priority) {
    if (StaticLog::isThresholdOn(priority)) {
        va_list args;
        va_start(args, format);
        writeFormatted(format, args);
        va_end(args);
    }
}

LogFunctionCall::~LogFunctionCall() {
    if (StaticLog::isThresholdOn(priority)) {
        write(EndText);
    }
}

void LogFunctionCall::print(const wchar_t* format, ...) const {
    if (StaticLog::isThresholdOn(priority)) {
        va_list args;
        va_start(args, format);
        writeFormatted(format, args);
        va_end(args);
    }
}

void LogFunctionCall::write(const std::wstring& message) const {
    StaticLog::log(priority, function, message, module, L"", Thread::getCurrentThreadId(), file,
                   line);
}

void LogFunctionCall::writeFormatted(const wchar_t* format, va_list args) const {
    std::wstring message;
    try {
        StringUtils::sprintfStringAppendVA(message, args, format);
    } catch (const VornException& e) {
        if (StaticLog::isThresholdOn(DEBUG)) {
            std::wstring failure;
            StringUtils::sprintfStringAppend(failure, FormatErrorText, e.getMessage().c_str());
            StaticLog::log(DEBUG, function, failure, LibraryModule, L"",
                           Thread::getCurrentThreadId(), file, line);
        }
        message = orEmpty(format);
    }
    write(message);
}

}  // namespace vorn_std
