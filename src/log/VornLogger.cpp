#include "vorn_std/log/VornLogger.h"

#include "vorn_std/base/StringUtils.h"
#include "vorn_std/exception/VornException.h"
#include "vorn_std/log/InternalDebug.h"
#include "vorn_std/log/StaticLog.h"
#include "vorn_std/thread/Thread.h"

namespace vorn_std {

namespace {

constexpr const wchar_t* Separator = L"::";
constexpr const wchar_t* FormatErrorText = L"Error formatting message: %ls.";

}  // namespace

VornLogger::~VornLogger() = default;

std::wstring VornLogger::getFunctionName(const std::wstring& name) {
    const size_t last = name.rfind(Separator);
    return last == std::wstring::npos ? name : name.substr(last + 2);
}

std::wstring VornLogger::getQualifiedFunctionName(const std::wstring& name) {
    const size_t last = name.rfind(Separator);
    if (last == std::wstring::npos || last == 0) {
        return last == std::wstring::npos ? name : name.substr(last + 2);
    }
    const size_t previous = name.rfind(Separator, last - 1);
    return name.substr(previous == std::wstring::npos ? last + 2 : previous + 2);
}

#define VORN_DEFINE_LEVEL(NAME, PRIORITY)                                                      \
    void VornLogger::NAME(const std::wstring& id, const std::wstring& function,                \
                          const wchar_t* format, ...) {                                        \
        va_list args;                                                                          \
        va_start(args, format);                                                                \
        logMessage(PRIORITY, id, function, format, args);                                      \
        va_end(args);                                                                          \
    }

VORN_DEFINE_LEVEL(Fatal, FATAL)
VORN_DEFINE_LEVEL(Error, ERROR)
VORN_DEFINE_LEVEL(Warn, WARN)
VORN_DEFINE_LEVEL(Info, INFO)

#undef VORN_DEFINE_LEVEL

void VornLogger::logMessage(LogEventPriority priority, const std::wstring& id,
                            const std::wstring& function, const wchar_t* format, va_list args) {
    std::wstring text;
    try {
        StringUtils::sprintfStringAppendVA(text, args, format);
    } catch (const VornException& e) {
        if (__internal_debug_on()) {
            __internal_debug(function.c_str(), L"VornLogger.cpp", __LINE__, FormatErrorText,
                             e.getMessage().c_str());
        }
        text = format != nullptr ? format : L"";
    }
    StaticLog::log(priority, getQualifiedFunctionName(function), text, getModuleName(),
                   getFunctionName(id), Thread::getCurrentThreadId(), std::wstring(), 0);
}

}  // namespace vorn_std
